"""Builds the extension of the wheel by CMake, with the libraries in it."""

import pathlib
import re

from skbuild import setup

cmake = pathlib.Path("CMakeLists.txt").read_text(encoding="utf-8")

setup(
    version=re.search(r"^  VERSION (\S+)$", cmake, re.MULTILINE)[1],
    packages=["quill_inp"],
    package_dir={"": "python"},
    package_data={"quill_inp": ["py.typed", "*.pyi"]},
    cmake_install_dir="python/quill_inp",
    cmake_args=[
        "-DBUILD_SHARED_LIBS=OFF",
        "-DKELP_QUILL_INP_BUILD_PYTHON=ON",
        "-DKELP_QUILL_INP_INSTALL=OFF",
        "-DKELP_QUILL_INP_PYTHON_DIR=.",
    ],
)
