# Where installed files look for the libraries that they need: in a folder that is named relative to
# their own, so that a program starts from any prefix, also after the prefix was moved.
#
# Two variables of CMake's change that: CMAKE_SKIP_INSTALL_RPATH leaves the run paths out, as
# distributions want it, and CMAKE_INSTALL_RPATH replaces them. The first is remembered and switched off,
# because with it CMake would also leave out what the program in the build needs.
set(KELP_QUILL_INP_SKIPS_RUN_PATHS ${CMAKE_SKIP_INSTALL_RPATH})
set(CMAKE_SKIP_INSTALL_RPATH OFF)

# kelp_quill_inp_get_run_path(RESULT FROM): the run path of files in the installed folder FROM, empty if
# the libraries go where the dynamic linker looks anyway.
function(kelp_quill_inp_get_run_path result from)
  set(own_folder "^/(usr/)?lib(32|64|x32)?(/${CMAKE_LIBRARY_ARCHITECTURE})?/?$")
  if(CMAKE_SKIP_RPATH OR KELP_QUILL_INP_SKIPS_RUN_PATHS
      OR CMAKE_INSTALL_FULL_LIBDIR MATCHES "${own_folder}")
    set(${result} "" PARENT_SCOPE)
    return()
  endif()
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${from}" OUTPUT_VARIABLE way)
  if(way STREQUAL ".")
    set(${result} "\$ORIGIN" PARENT_SCOPE)
  else()
    set(${result} "\$ORIGIN/${way}" PARENT_SCOPE)
  endif()
endfunction()

# The same for a target in the build, where each library has a folder of its own. Sister libraries from
# another installation stay where they are.
function(kelp_quill_inp_get_run_path_of_build result target)
  set(folders "")
  foreach(package IN LISTS ARGN)
    string(REPLACE "kelp_" "kelp::" library ${package})
    get_target_property(is_imported ${library} IMPORTED)
    if(is_imported)
      list(APPEND folders "$<TARGET_FILE_DIR:${library}>")
    else()
      list(APPEND folders
        "\$ORIGIN/$<PATH:RELATIVE_PATH,$<TARGET_FILE_DIR:${library}>,$<TARGET_FILE_DIR:${target}>>")
    endif()
  endforeach()
  set(${result} "${folders}" PARENT_SCOPE)
endfunction()

# kelp_quill_inp_install_run_path(TARGET KIND COMPONENT [LIBRARY...])
#
# Gives a target its run paths, in the build and as it is installed, after its install(TARGETS). KIND is
# LIBDIR or BINDIR, and the libraries, named as their packages are, are those that it needs.
#
# When CMake itself replaces the run path of the build on installing, it ends the first with an empty
# entry, and an empty entry is the current folder of whoever starts the program. So the build has the run
# path that is made here, and it is replaced here, by the commands of CMake's own install scripts.
function(kelp_quill_inp_install_run_path target kind component)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "STATIC_LIBRARY" OR DEFINED CMAKE_INSTALL_RPATH)
    return()
  endif()
  kelp_quill_inp_get_run_path(installed "${CMAKE_INSTALL_FULL_${kind}}")
  if(NOT CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF")
    string(REPLACE "\$ORIGIN" "@loader_path" installed "${installed}")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${installed}")
    return()
  endif()

  kelp_quill_inp_get_run_path_of_build(built ${target} ${ARGN})
  # Named in the build as well, because a run path in a file can be shortened but not extended.
  list(APPEND built ${installed})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${built}" BUILD_WITH_INSTALL_RPATH ON)

  cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_${kind} BASE_DIRECTORY "\${CMAKE_INSTALL_PREFIX}"
    OUTPUT_VARIABLE folder)
  set(file "\$ENV{DESTDIR}${folder}/$<TARGET_FILE_NAME:${target}>")
  if(installed STREQUAL "")
    install(CODE "file(RPATH_REMOVE FILE \"${file}\")" COMPONENT ${component})
  else()
    install(CODE "file(RPATH_SET FILE \"${file}\" NEW_RPATH [==[${installed}]==])"
      COMPONENT ${component})
  endif()
endfunction()
