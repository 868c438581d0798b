# Asks an installed package, as find_package does, which versions it is compatible with:
#
#   cmake -DVERSION_FILE=... -P compatible_versions.cmake

# expect(ASKED_FOR ANSWER)
function(expect asked_for answer)
  set(PACKAGE_FIND_VERSION ${asked_for})
  string(REPLACE "." ";" parts "${asked_for}.0.0")
  list(GET parts 0 PACKAGE_FIND_VERSION_MAJOR)
  list(GET parts 1 PACKAGE_FIND_VERSION_MINOR)
  list(GET parts 2 PACKAGE_FIND_VERSION_PATCH)
  set(PACKAGE_VERSION_COMPATIBLE)
  include("${VERSION_FILE}")
  if(NOT PACKAGE_VERSION_COMPATIBLE STREQUAL answer)
    message(SEND_ERROR
      "asked for ${asked_for}, ${VERSION_FILE} says '${PACKAGE_VERSION_COMPATIBLE}'")
  endif()
endfunction()

set(CMAKE_SIZEOF_VOID_P 8)
expect(0.1 TRUE)
expect(0.1.0 TRUE)
expect(0.1.1 FALSE)
expect(0.0.9 FALSE)
expect(0.2 FALSE)
expect(1.0 FALSE)
