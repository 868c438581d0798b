# The same sources give the same bytes in whatever folder they are built: no path of the machine gets
# into objects or into the run paths of what is built. A debug build keeps the paths, so that a
# debugger finds the sources.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
add_compile_options(
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>"
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>"
)
