# Debian packages by CPack, for the preset debian: the libraries, the files for building programs, the
# tool and the Python package. They have what Debian's policy requires: a changelog, a copyright file,
# compressed manual pages.
if(NOT KELP_QUILL_INP_DEBIAN_PACKAGES)
  return()
endif()

find_program(KELP_QUILL_INP_GZIP gzip REQUIRED)
set(runtime_package libkelp-quill-inp${KELP_QUILL_INP_SOVERSION})
set(development_package libkelp-quill-inp-dev)
set(tool_package quill-inp)
set(components runtime development tool)
if(KELP_QUILL_INP_BUILD_PYTHON)
  set(python_package python3-quill-inp)
  list(APPEND components python)
endif()

set(debian_release 0kelp1)
set(debian_files "${PROJECT_SOURCE_DIR}/cmake/debian")
file(STRINGS "${debian_files}/changelog" newest_entry LIMIT_COUNT 1)
string(FIND "${newest_entry}" "(${PROJECT_VERSION}-${debian_release})" position)
if(position EQUAL -1)
  message(FATAL_ERROR "cmake/debian/changelog begins with '${newest_entry}', which is not of version "
    "${PROJECT_VERSION}-${debian_release}.")
endif()

# install_compressed(FILE FOLDER NAME COMPONENT)
function(install_compressed file folder name component)
  set(compressed "${PROJECT_BINARY_DIR}/package/${component}/${name}.gz")
  file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/package/${component}")
  execute_process(COMMAND "${KELP_QUILL_INP_GZIP}" -9nc "${file}" OUTPUT_FILE "${compressed}"
    COMMAND_ERROR_IS_FATAL ANY)
  install(FILES "${compressed}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

foreach(component IN LISTS components)
  set(package ${${component}_package})
  install_compressed("${debian_files}/changelog"
    "${CMAKE_INSTALL_DATADIR}/doc/${package}" changelog.Debian ${component})
  install(FILES "${debian_files}/copyright"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}" COMPONENT ${component})
endforeach()
install(FILES "${debian_files}/runtime.lintian-overrides"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME ${runtime_package}
  COMPONENT runtime)
install_compressed("${PROJECT_SOURCE_DIR}/CHANGELOG.md"
  "${CMAKE_INSTALL_DATADIR}/doc/${development_package}" changelog development)
file(READ "${PROJECT_SOURCE_DIR}/README.md" readme)
string(REPLACE "(CHANGELOG.md)" "(changelog.gz)" readme "${readme}")
file(WRITE "${PROJECT_BINARY_DIR}/package/README.md" "${readme}")
install(FILES "${PROJECT_BINARY_DIR}/package/README.md"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation)
if(EXISTS "${PROJECT_SOURCE_DIR}/docs/man/quill-inp.1")
  install_compressed("${PROJECT_SOURCE_DIR}/docs/man/quill-inp.1"
    "${CMAKE_INSTALL_MANDIR}/man1" quill-inp.1 tool)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${components} documentation)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP development)
set(CPACK_COMPONENT_DOCUMENTATION_GROUP development)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_release})
# People who distribute packages set an address at which they read mail.
if(NOT CPACK_DEBIAN_PACKAGE_MAINTAINER)
  set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The kelp developers <kelp@kelp.invalid>")
endif()
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${debian_files}/triggers")
# The tool's own libraries are found in the build; the package that contains them is set above.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
get_property(libraries GLOBAL PROPERTY KELP_QUILL_INP_LIBRARIES)
foreach(library IN LISTS libraries)
  get_target_property(folder ${library} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()

# Each description has its own first line.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(quill_input "A QUILL input is the plain-text job description of a
computational-chemistry engine. The library reads, edits, builds and writes
them. No text is refused, no line is lost silently, and every diagnostic about
a line names it.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "reader and writer of QUILL inputs, shared libraries
${quill_input}

This package has the library, the two small ones that it uses, and one for
programs that edit the files of their users.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "reader and writer of QUILL inputs, development files
${quill_input}

This package has the C++ headers, the files that CMake and pkg-config ask for,
the documentation and the examples.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME ${tool_package})
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION science)
set(CPACK_DEBIAN_TOOL_DESCRIPTION "read, check, edit and make QUILL inputs on the command line
A QUILL input is the plain-text job description of a computational-chemistry
engine. The program shows, checks, formats and edits such files, makes new
ones, and turns them into JSON and back. An edit changes the lines it means
and leaves every other byte alone.")

if(KELP_QUILL_INP_BUILD_PYTHON)
  include(cmake/debian_python.cmake)
endif()

include(CPack)
