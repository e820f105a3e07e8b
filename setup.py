"""Builds the extension with the project's own CMake files. All else is in pyproject.toml."""

import os
import pathlib
import re
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

PROJECT = pathlib.Path(__file__).resolve().parent
BUILD = PROJECT / "build" / "python"  # nothing is written anywhere else


class BuildByCMake(build_ext):
    def build_extension(self, ext: Extension) -> None:
        module = pathlib.Path(self.get_ext_fullpath(ext.name)).resolve()
        build = pathlib.Path(self.build_temp).resolve()
        subprocess.run(["cmake", "-S", PROJECT, "-B", build, "-DCMAKE_BUILD_TYPE=Release", "-DKAVI_HARDENED=ON",
                        "-DKAVI_BUILD_TESTS=OFF", "-DKAVI_BUILD_TOOLS=OFF", "-DKAVI_INSTALL=OFF",
                        "-DKAVI_BUILD_PYTHON=ON", f"-DPython3_EXECUTABLE={sys.executable}",
                        f"-DKAVI_PYTHON_MODULE_DIR={module.parent}"], check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", build, "--target", "kavi_python", "--parallel", str(os.cpu_count())],
                       check=True, stdout=subprocess.DEVNULL)


try:
    BUILD.mkdir(parents=True, exist_ok=True)
except OSError as error:
    sys.exit(f"kavi is built in {BUILD}, which cannot be made: {error.strerror}")
version = re.search(r"^project\(kavi VERSION ([\d.]+)", (PROJECT / "CMakeLists.txt").read_text(), re.M)
setup(version=version[1], ext_modules=[Extension("kavi._kavi", sources=[])], cmdclass={"build_ext": BuildByCMake},
      options={"build": {"build_base": str(BUILD.relative_to(PROJECT))},
               "egg_info": {"egg_base": str(BUILD.relative_to(PROJECT))}})
