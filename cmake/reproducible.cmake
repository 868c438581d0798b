# The same sources give the same bytes in any folder: no path of the machine gets into objects or run
# paths. A debug build keeps the paths, so that a debugger finds the sources.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
add_compile_options(
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>"
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>"
)
