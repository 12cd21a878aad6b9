"""Builds the module with CMake, which needs a C++20 compiler and pybind11."""

import pathlib
import re
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parent
VERSION = re.search(r"project\(Zorvane VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())[1]
OTHER_PARTS = ("BUILD_QT", "BUILD_VIEWER", "BUILD_DESIGNER", "BUILD_TOOL", "BUILD_TESTS",
               "WITH_SQLITE", "WITH_JSON", "WITH_TOML")


class BuildWithCMake(build_ext):
    def build_extension(self, extension):
        package = pathlib.Path(self.get_ext_fullpath(extension.name)).resolve().parent
        build = pathlib.Path(self.build_temp).resolve()
        subprocess.run(
            ["cmake", "-S", ROOT, "-B", build, "-DCMAKE_BUILD_TYPE=Release",
             "-DZORVANE_BUILD_PYTHON=ON", "-DZORVANE_INSTALL=OFF",
             f"-DPython3_EXECUTABLE={sys.executable}", f"-DZORVANE_PYTHON_PACKAGE={package}"]
            + [f"-DZORVANE_{part}=OFF" for part in OTHER_PARTS],
            check=True,
        )
        subprocess.run(["cmake", "--build", build, "--parallel", "--target", "zorvane_python"], check=True)


setup(version=VERSION, ext_modules=[Extension("zorvane._zorvane", [])],
      cmdclass={"build_ext": BuildWithCMake})
