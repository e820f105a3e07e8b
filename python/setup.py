"""Builds the extension with the project's own CMake files. All else is in pyproject.toml."""

import pathlib
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

PROJECT = pathlib.Path(__file__).resolve().parent.parent


class BuildByCMake(build_ext):
    def build_extension(self, ext: Extension) -> None:
        module = pathlib.Path(self.get_ext_fullpath(ext.name)).resolve()
        build = PROJECT / "build" / "python"
        subprocess.run(["cmake", "-S", PROJECT, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                        "-DKAVI_HARDENED=ON",
                        "-DKAVI_BUILD_TESTS=OFF", "-DKAVI_BUILD_TOOLS=OFF", "-DKAVI_BUILD_PYTHON=ON",
                        f"-DPython3_EXECUTABLE={sys.executable}",
                        f"-DKAVI_PYTHON_MODULE_DIR={module.parent}"], check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", build, "--target", "kavi_python", "--", "--quiet"], check=True)


setup(ext_modules=[Extension("kavi._kavi", sources=[])], cmdclass={"build_ext": BuildByCMake})
