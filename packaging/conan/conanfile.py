"""conan create packaging/conan"""
import os
import re

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")


class Hux(ConanFile):
    name = "hux"
    description = "Image-processing primitives with exact results"
    license = "Apache-2.0"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def set_version(self):
        self.version = re.search(r"project\(hux VERSION ([\d.]+)", load(self, os.path.join(ROOT, "CMakeLists.txt")))[1]

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "include/*", "src/*"):
            copy(self, pattern, ROOT, self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        levels = self.settings.os == "Linux" and self.settings.arch == "x86_64"
        toolchain.cache_variables.update(HUX_ARCH="x86-64" if levels else "", HUX_HWCAPS=levels, HUX_PROGRAM=False,
                                         HUX_TESTS=False, HUX_BENCH=False, HUX_EXAMPLES=False)
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))

    def package_info(self):
        # find_package(hux) reads the library's own file.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = [os.path.join("lib", "cmake", "hux")]
        self.cpp_info.libs = ["huxi", "huxcore"]
