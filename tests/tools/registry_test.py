#!/usr/bin/python3
"""Tests of tools/registry: on a small header of hard names, and on the whole of the public headers."""
import json
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
TOOL = ROOT / "tools" / "registry"

HEADER = """
/* Summary. */
#include <stdint.h>
typedef uint8_t Hux8u;
typedef int16_t Hux16s;
typedef int32_t Hux32s;
typedef float Hux32f;
typedef struct { Hux32s width, height; } HuxiSize;
typedef Hux32s HuxStatus;
enum {
  huxStsOk = 0,       /* fine */
  huxStsNullPtr = -8, /* a pointer is null */
  huxStsWarn = 1
};
/* Wish. */
typedef Hux32s HuxAccuracyHint;
enum { huxHintNone = 0, huxHintAccurate = 2, huxAlgHintAccurate = huxHintAccurate, huxTop = -2147483647 - 1 };
typedef struct HuxiFFTRecord HuxiFFTRecord;

/* ---- Moves ---- */

/* Speaks for
 *   all moves. */

/* Copy: moves. */
HUX_API HuxStatus huxiCopy_8u_C3P3R(const Hux8u* pSrc, int srcStep, Hux8u* const pDst[3], int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_AC4C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C3CR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_AC4MR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);

/* ---- Values ---- */

/* Convert: types. */
HUX_API HuxStatus huxiConvert_32f16s_C1R(const Hux32f* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);

/* Threshold: beyond. */
HUX_API HuxStatus huxiThreshold_LTVal_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold,
                                              Hux8u value);
HUX_API HuxStatus huxsThreshold_GT_8u_ISfs(Hux8u* pSrcDst, int len, Hux8u threshold, int scaleFactor);

/* Sum: adds. */
HUX_API HuxStatus huxiSum_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32f pSum[3]);

/* Makes and frees. */
HUX_API HuxStatus huxiFFTInitAlloc_C_32f(HuxiFFTRecord** ppCtx, int order, HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTInitAlloc_R_32f(HuxiFFTRecord** ppCtx, int order, HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTFree_R_32f(HuxiFFTRecord* pCtx);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);

/* More of Copy, and Move. */
HUX_API HuxStatus huxsCopy_8u(const Hux8u* pSrc, Hux8u* pDst, int len);
HUX_API HuxStatus huxsMove_8u(const Hux8u* pSrc, Hux8u* pDst, int len);

/* A setting. */
extern HUX_API Hux32s hux_setting;

/* SetAll: sets it. */
HUX_API void huxSetAll(Hux32s count);
"""


def run(*arguments, check=True):
    result = subprocess.run([TOOL, *map(str, arguments)], capture_output=True, text=True)
    if check and result.returncode:
        raise AssertionError(result.stderr)
    return result


class HardNames(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        Path(cls.folder.name, "hux.h").write_text(HEADER)
        cls.registry = json.loads(run("--headers", cls.folder.name).stdout)
        cls.functions = {f["name"]: f for f in cls.registry["functions"]}

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def expect(self, name, **expected):
        function = self.functions[name]
        for key, value in expected.items():
            self.assertEqual(function["flags"][key] if key in function["flags"] else function[key], value, (name, key))
        return {p["name"]: p for p in function["parameters"]}

    def test_names(self):
        self.expect("huxiConvert_32f16s_C1R", operation="Convert", types=["32f", "16s"], source_type="32f",
                    destination_type="16s", layout="C1", region=True, scaled=False, domain="image")
        self.expect("huxiCopy_32f_AC4C3R", types=["32f"], layout="AC4C3", source_layout="AC4",
                    destination_layout="C3")
        self.expect("huxiCopy_8u_C3CR", layout="C3", one_channel=True, masked=False)
        self.expect("huxiThreshold_LTVal_8u_C1IR", operation="Threshold_LTVal", in_place=True)
        self.expect("huxsThreshold_GT_8u_ISfs", operation="Threshold_GT", in_place=True, scaled=True, vector=True,
                    layout=None, domain="vector")
        self.expect("huxiFFTFwd_RToPack_32f_C1R", operation="FFTFwd_RToPack", types=["32f"], context=True)

    def test_parameters(self):
        copy = self.expect("huxiCopy_8u_C3P3R", shape="ipipiS")
        self.assertEqual((copy["pDst"]["kind"], copy["pDst"]["extents"], copy["pDst"]["element"]), ("planes", [3], "8u"))
        self.assertEqual((copy["pDst"]["type"], copy["pDst"]["const"]), ("Hux8u* const[3]", False))
        self.assertEqual((copy["pSrc"]["layout"], copy["pDst"]["layout"]), ("C3", "P3"))
        masked = self.expect("huxiCopy_8u_AC4MR", masked=True)
        self.assertEqual((masked["pMask"]["role"], masked["maskStep"]["of"]), ("mask", ["pMask"]))
        self.assertEqual((masked["srcStep"]["of"], masked["pMask"]["layout"]), (["pSrc"], "C1"))
        total = self.expect("huxiSum_8u_C3R")["pSum"]
        self.assertEqual((total["role"], total["extents"], total["const"]), ("result", [3], False))
        make = self.expect("huxiFFTInitAlloc_R_32f")
        self.assertEqual((make["ppCtx"]["kind"], make["ppCtx"]["type"]), ("record_out", "HuxiFFTRecord**"))
        self.assertEqual(make["hint"]["role"], "hint")

    def test_contexts(self):
        context = self.functions["huxiFFTFwd_RToPack_32f_C1R"]["context"]
        self.assertEqual((context["role"], context["make"], context["free"], context["init"]),
                         ("use", "huxiFFTInitAlloc_R_32f", "huxiFFTFree_R_32f", None))

    def test_families(self):
        families = {f["name"]: f for f in self.registry["families"]}
        self.assertEqual(families["FFT"]["operations"],
                         ["FFTInitAlloc_C", "FFTInitAlloc_R", "FFTFree_R", "FFTFwd_RToPack"])
        self.assertIn("huxsCopy_8u", families["Copy"]["functions"])
        self.assertEqual(families["Move"]["functions"], ["huxsMove_8u"])
        self.assertEqual(families["Threshold_LTVal"]["operations"], ["Threshold_LTVal", "Threshold_GT"])
        group = self.registry["groups"][self.functions["huxiCopy_8u_C3CR"]["group"]]
        self.assertEqual((group["section"], group["preface"], group["comment"]),
                         ("Moves", "Speaks for\n  all moves.", "Copy: moves."))
        self.assertEqual(group["summary"], "moves")
        for name in ("huxiSum_8u_C3R", "huxSetAll"):
            self.assertEqual(self.registry["groups"][self.functions[name]["group"]]["preface"], "")

    def test_the_rest(self):
        self.assertEqual([(s["name"], s["value"], s["kind"], s["comment"]) for s in self.registry["statuses"]],
                         [("huxStsOk", 0, "success", "fine"), ("huxStsNullPtr", -8, "error", "a pointer is null"),
                          ("huxStsWarn", 1, "warning", "")])
        hint = self.registry["enumerations"][0]
        self.assertEqual((hint["name"], hint["comment"]), ("HuxAccuracyHint", "Wish."))
        self.assertEqual(hint["values"][2]["alias"], "huxHintAccurate")
        self.assertEqual(hint["values"][3]["value"], -2147483648)
        records = {r["name"]: r["fields"] for r in self.registry["records"]}
        self.assertIsNone(records["HuxiFFTRecord"])
        self.assertEqual([f["name"] for f in records["HuxiSize"]], ["width", "height"])
        self.assertEqual([v["name"] for v in self.registry["variables"]], ["hux_setting"])

    def test_differences(self):
        with tempfile.TemporaryDirectory() as other:
            changed = HEADER.replace("int len, Hux8u threshold", "int len, Hux32s threshold")
            changed = changed.replace("HUX_API HuxStatus huxsMove_8u(const Hux8u* pSrc, Hux8u* pDst, int len);\n", "")
            changed = changed.replace("huxStsNullPtr = -8", "huxStsNullPtr = -9")
            Path(other, "hux.h").write_text(changed)
            forth = run("--diff", self.folder.name, other, check=False)
            self.assertEqual(forth.returncode, 1)
            self.assertIn("removed function huxsMove_8u", forth.stdout)
            self.assertIn("changed function huxsThreshold_GT_8u_ISfs", forth.stdout)
            self.assertIn("changed status huxStsNullPtr", forth.stdout)
            self.assertIn("added   function huxsMove_8u", run("--diff", other, self.folder.name, check=False).stdout)
        same = run("--diff", self.folder.name, self.folder.name)
        self.assertEqual(same.stdout, "no difference\n")


class PublicHeaders(unittest.TestCase):
    """Nothing in the real headers is beyond the tool."""

    def test_everything_is_understood(self):
        registry = json.loads(run().stdout)
        names = [f["name"] for f in registry["functions"]]
        self.assertEqual(len(names), len(set(names)))
        declared = subprocess.run(f"cat {ROOT}/include/*.h | grep -cE '^HUX_(CORE_)?API '", shell=True, capture_output=True,
                                  text=True)
        self.assertEqual(len(names), int(declared.stdout))
        for function in registry["functions"]:
            # A name is its parts.
            suffix = function["name"].split(function["operation"], 1)[1]
            self.assertTrue(suffix.startswith("_" + "".join(function["types"])) or not function["types"],
                            function["name"])
            for parameter in function["parameters"]:
                self.assertNotEqual(parameter["role"], "other", (function["name"], parameter["name"]))
                if parameter["role"] == "step":
                    self.assertEqual(bool(parameter["of"]), True, (function["name"], parameter["name"]))
            context = function["context"]
            if context:
                self.assertTrue(context["make"] and context["free"], function["name"])
        self.assertEqual(sum(len(f["functions"]) for f in registry["families"]), len(names))
        self.assertTrue(all(group["comment"] for group in registry["groups"]))


if __name__ == "__main__":
    unittest.main()
