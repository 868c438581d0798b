include(GNUInstallDirs)

# Without options, only the libraries are built; the presets switch the rest on.
option(KELP_QUILL_INP_BUNDLED_SISTERS "Build the text and element libraries from this tree" ON)
option(KELP_QUILL_INP_BUILD_EXAMPLES "Build the example programs" OFF)
option(KELP_QUILL_INP_BUILD_TOOLS "Build quill-inp (needs CLI11, libmd, nlohmann-json and utf8cpp)" OFF)
option(KELP_QUILL_INP_BUILD_PYTHON
  "Build the Python package (needs pybind11, nlohmann-json and utf8cpp)" OFF)
option(KELP_QUILL_INP_BUILD_WEB
  "Build the reader for web pages (needs Emscripten, nlohmann-json and utf8cpp)" OFF)
set(KELP_QUILL_INP_PYTHON_DIR "" CACHE STRING "Folder for the extension of the Python package, for setup.py")
option(KELP_QUILL_INP_BUILD_TESTS "Build the tests (needs GoogleTest and the examples)" OFF)
option(KELP_QUILL_INP_BUILD_BENCHMARKS "Build the benchmarks (needs Google Benchmark)" OFF)
option(KELP_QUILL_INP_BUILD_FUZZERS "Build the fuzz targets, or programs that replay their inputs" OFF)
option(KELP_QUILL_INP_INSTALL "Install the libraries and the tool with cmake --install"
  ${PROJECT_IS_TOP_LEVEL})
option(KELP_QUILL_INP_DEBIAN_PACKAGES "Let cpack make Debian packages; see the preset debian" OFF)
option(KELP_QUILL_INP_HARDENING "Build with hardening flags, for programs that are shipped" OFF)
option(KELP_QUILL_INP_WARNINGS_AS_ERRORS "Make a compiler warning fail the build" OFF)
option(KELP_QUILL_INP_COVERAGE "Count what the tests reach (needs clang++)" OFF)
set(KELP_QUILL_INP_SANITIZERS "" CACHE STRING
  "Sanitizers to build with, separated by commas, for example address,undefined")

set(KELP_QUILL_INP_ZSH_COMPLETIONS_DIR "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING
  "Folder for the tool's completions for zsh")

# Unless BUILD_SHARED_LIBS says it, the libraries are shared, and in another project static: what that
# project installs then has all that it needs.
if(DEFINED BUILD_SHARED_LIBS)
  set(is_shared ${BUILD_SHARED_LIBS})
else()
  set(is_shared ${PROJECT_IS_TOP_LEVEL})
endif()
if(is_shared)
  set(KELP_QUILL_INP_LIBRARY_TYPE SHARED)
else()
  set(KELP_QUILL_INP_LIBRARY_TYPE STATIC)
endif()
