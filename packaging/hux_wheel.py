"""Builds the wheel of hux: the Python module with the libraries inside, which the loader picks by the processor's level.

  packaging/hux_wheel.py FOLDER     the wheel, into a folder

It is also what pyproject.toml names, so that `pip install .` works. The build is CMake's, in build/packaging, or in
build/packaging-LEVEL where HUX_LEVEL names one architecture level (native) instead of all. Needed: what builds hux, and
patchelf. The module uses Python's limited interface: one wheel serves Python 3.11 and later.
"""
import base64
import csv
import hashlib
import io
import os
import re
import shutil
import subprocess
import sys
import sysconfig
import tempfile
import time
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SUMMARY = "Image-processing primitives with exact results"
METADATA = """Metadata-Version: 2.1
Name: hux
Version: {version}
Summary: {summary}
License: Apache-2.0
Requires-Python: >=3.11
Requires-Dist: numpy
Description-Content-Type: text/markdown

{readme}"""
WHEEL = """Wheel-Version: 1.0
Generator: hux
Root-Is-Purelib: false
Tag: {tag}
"""


def run(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, cwd=ROOT, **options)


def output(*command):
    return run(*command, capture_output=True, text=True).stdout


def version():
    return re.search(r"project\(hux VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]


def build(stage):
    """Builds, and installs the module and the libraries, stripped, into stage/hux and stage/hux/lib."""
    level = os.environ.get("HUX_LEVEL")
    folder = ROOT / "build" / ("packaging" + (f"-{level}" if level else ""))
    options = [f"-DHUX_ARCH={level}", "-DHUX_HWCAPS=OFF"] if level else []
    if not level and os.uname().machine != "x86_64":
        options = ["-DHUX_ARCH=", "-DHUX_HWCAPS=OFF"]
    include = sysconfig.get_path("include")
    if Path(include, "Python.h").exists():
        options.append(f"-DHUX_PYTHON_INCLUDE={include}")
    run("cmake", "--preset", "packaging", "-B", folder, *options, stdout=sys.stderr)
    run("cmake", "--build", folder, "-j", os.environ.get("HUX_JOBS", os.cpu_count()), stdout=sys.stderr)
    with tempfile.TemporaryDirectory() as prefix:
        for component in ("runtime", "python"):
            run("cmake", "--install", folder, "--component", component, "--prefix", prefix, "--strip",
                stdout=subprocess.DEVNULL)
        module, = Path(prefix).rglob("_hux.abi3.so")
        shutil.copytree(module.parent, stage / "hux")
        library, = (f for f in Path(prefix).rglob("libhuxi.so.*.*") if "glibc-hwcaps" not in f.parts)
        for file in library.parent.rglob("libhux*.so.*"):
            # A wheel has no links: a library stands under the name by which it is asked for.
            if file.is_symlink():
                target = stage / "hux" / "lib" / file.relative_to(library.parent)
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(file, target)


def close(package):
    """Everything in the package finds the rest from its own place. The runtime of teams comes along under a name of our
    own, since another module of the process may bring another."""
    module, lib = package / "_hux.abi3.so", package / "lib"
    run("patchelf", "--set-rpath", "$ORIGIN/lib", module)
    teams = "libgomp.so.1"
    for file in lib.rglob("*.so.*"):
        run("patchelf", "--set-rpath", "$ORIGIN" if file.parent == lib else "$ORIGIN/../..", file)
        if teams in output("patchelf", "--print-needed", file).split():
            run("patchelf", "--replace-needed", teams, f"libhux-{teams[3:]}", file)
    found = Path(output("gcc", f"-print-file-name={teams}").strip())
    if found.is_absolute():
        own = lib / f"libhux-{teams[3:]}"
        shutil.copy(found.resolve(), own)
        run("patchelf", "--set-soname", own.name, own)


def tag(package):
    """What the wheel runs on: the newest version of the C library that a file of it asks for."""
    machine = sysconfig.get_platform().replace("-", "_").replace(".", "_").removeprefix("linux_")
    asked = [int(minor) for file in package.rglob("*.so*")
             for minor in re.findall(r"GLIBC_2\.(\d+)", output("readelf", "-V", file))]
    return f"cp311-abi3-manylinux_2_{max(asked)}_{machine}"


def write(wheel, stage):
    """The files below a folder as a wheel, with the record that it ends in; the same files, the same bytes."""
    moment = int(os.environ.get("SOURCE_DATE_EPOCH", 315532800))
    record_name = f"hux-{version()}.dist-info/RECORD"
    rows = []
    with zipfile.ZipFile(wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        def add(name, data, mode=0o644):
            entry = zipfile.ZipInfo(name, time.gmtime(moment)[:6])
            entry.external_attr, entry.compress_type = (0o100000 | mode) << 16, zipfile.ZIP_DEFLATED
            archive.writestr(entry, data)
        files = sorted(f for f in stage.rglob("*") if f.is_file())
        for file in sorted(files, key=lambda f: ".dist-info" in str(f)):
            name, data = file.relative_to(stage).as_posix(), file.read_bytes()
            digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
            rows.append((name, f"sha256={digest}", len(data)))
            add(name, data, 0o755 if ".so" in file.name else 0o644)
        text = io.StringIO()
        csv.writer(text, lineterminator="\n").writerows([*rows, (record_name, "", "")])
        add(record_name, text.getvalue())


# ---- What an installer calls (PEP 517) -------------------------------------------------------------------------------


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    with tempfile.TemporaryDirectory() as folder:
        stage = Path(folder)
        build(stage)
        close(stage / "hux")
        tags = tag(stage / "hux")
        about = stage / f"hux-{version()}.dist-info"
        (about / "licenses").mkdir(parents=True)
        shutil.copy(ROOT / "LICENSE", about / "licenses")
        teams = Path("/usr/share/doc/libgomp1/copyright")
        if teams.exists():
            shutil.copy(teams, about / "licenses" / "libgomp")
        (about / "METADATA").write_text(
            METADATA.format(version=version(), summary=SUMMARY, readme=(ROOT / "README.md").read_text()))
        (about / "WHEEL").write_text(WHEEL.format(tag=tags))
        name = f"hux-{version()}-{tags}.whl"
        write(Path(wheel_directory) / name, stage)
        return name


if __name__ == "__main__":
    print(build_wheel(Path(sys.argv[1]).resolve()))
