#!/usr/bin/python3
"""The recipes of packaging/: what they are written in can be read, the version that they find is the project's, and the
options that they give are options of the build."""
import json
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
RECIPES = ROOT / "packaging"
CMAKE = (ROOT / "CMakeLists.txt").read_text()
VERSION = re.search(r"project\(hux VERSION ([\d.]+)", CMAKE)[1]

# What vcpkg gives a port, as far as the port's own text goes.
VCPKG = r"""
set(CURRENT_PORT_DIR "{0}")
set(CURRENT_PACKAGES_DIR "{0}/nowhere")
set(VCPKG_TARGET_IS_LINUX ON)
set(VCPKG_TARGET_ARCHITECTURE x64)
foreach(name vcpkg_check_linkage vcpkg_cmake_install vcpkg_cmake_config_fixup vcpkg_fixup_pkgconfig)
  cmake_language(EVAL CODE "function(${{name}})\nendfunction()")
endforeach()
function(vcpkg_cmake_configure)
  cmake_parse_arguments(PARSE_ARGV 0 is "" "SOURCE_PATH" "OPTIONS")
  message("${{is_SOURCE_PATH}};${{is_OPTIONS}}")
endfunction()
function(vcpkg_install_copyright)
  cmake_parse_arguments(PARSE_ARGV 0 is "" "" "FILE_LIST")
  file(SIZE ${{is_FILE_LIST}} size)
endfunction()
include("{0}/portfile.cmake")
"""


class Recipes(unittest.TestCase):
    def options_exist(self, text):
        used = set(re.findall(r"HUX_[A-Z0-9_]+", text))
        everywhere = CMAKE + (ROOT / "python" / "CMakeLists.txt").read_text()
        self.assertTrue(used)
        self.assertEqual(used - set(re.findall(r"HUX_[A-Z0-9_]+", everywhere)), set())

    def test_conda(self):
        text = (RECIPES / "conda" / "meta.yaml").read_text()
        self.assertNotIn("\t", text)
        pattern = re.search(r'regex_pattern="(.*?)"', text)[1]
        self.assertEqual(re.search(pattern, CMAKE)[1], VERSION)
        self.options_exist(text)

    def test_vcpkg(self):
        self.assertEqual(json.loads((RECIPES / "vcpkg" / "vcpkg.json").read_text())["version"], VERSION)
        with tempfile.NamedTemporaryFile("w") as script:
            script.write(VCPKG.format(RECIPES / "vcpkg"))
            script.flush()
            run = subprocess.run(["cmake", "-P", script.name], text=True, capture_output=True)
        self.assertEqual(run.returncode, 0, run.stderr)
        source, *options = run.stderr.strip().split(";")
        self.assertEqual(Path(source), ROOT)
        self.assertIn("-DHUX_HWCAPS=ON", options)
        self.options_exist(run.stderr)

    def test_conan(self):
        for file in (RECIPES / "conan").rglob("conanfile.py"):
            compile(file.read_text(), file, "exec")
        self.options_exist((RECIPES / "conan" / "conanfile.py").read_text())

    def test_debian(self):
        newest = (ROOT / "debian" / "changelog").read_text().split("\n")[0]
        self.assertEqual(re.search(r"\((.*?)\)", newest)[1], VERSION)


if __name__ == "__main__":
    unittest.main()
