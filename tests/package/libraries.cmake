# The libraries in all forms in which users get them, each as a fixture that consumers require.

function(add_step name command_name)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "SETUP" "REQUIRES;COMMAND")
  add_test(NAME ${name}.${command_name} COMMAND ${arg_COMMAND})
  set_tests_properties(${name}.${command_name} PROPERTIES
    FIXTURES_SETUP "${arg_SETUP}" FIXTURES_REQUIRED "${arg_REQUIRES}")
endfunction()

# install_project(NAME SOURCE [OPTION...]): a build in NAME/build, an installation in
# NAME/installed. That is not the folder it was configured for, so that a file which contains the
# configured folder does not work.
function(install_project name source)
  set(folder "${PROJECT_BINARY_DIR}/${name}")
  add_step(${name} is_built SETUP ${name}.built
    COMMAND "${CMAKE_CTEST_COMMAND}" --build-and-test "${source}" "${folder}/build"
      --build-generator Ninja --build-noclean
      --build-options -DCMAKE_CXX_COMPILER=g++ -DCMAKE_INSTALL_PREFIX=/nonexistent ${ARGN})
  add_step(${name} is_installed SETUP ${name} REQUIRES ${name}.built
    COMMAND "${CMAKE_COMMAND}" --install "${folder}/build" --prefix "${folder}/installed")
endfunction()

# move_installation(NAME MOVED): installs NAME once more and moves all of it to the folder MOVED.
function(move_installation name moved)
  set(build "${PROJECT_BINARY_DIR}/${name}/build")
  set(folder "${PROJECT_BINARY_DIR}/${moved}")
  add_step(${moved} are_installed SETUP ${moved}.installed REQUIRES ${name}.built
    COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${folder}_before")
  add_step(${moved} are_moved SETUP ${moved} REQUIRES ${moved}.installed
    COMMAND "${CMAKE_COMMAND}" -E rename "${folder}_before" "${folder}")
endfunction()

# configure_again(NAME AGAIN AFTER DESTDIR OPTION...): configures the build of NAME again, with other
# options, and installs it under DESTDIR. It waits for the fixture AFTER, which needs the build as it was
# before.
function(configure_again name again after destdir)
  set(build "${PROJECT_BINARY_DIR}/${name}/build")
  add_step(${again} is_configured SETUP ${again}.configured REQUIRES ${name} ${after}
    COMMAND "${CMAKE_COMMAND}" ${ARGN} "${build}")
  add_step(${again} is_installed SETUP ${again} REQUIRES ${again}.configured
    COMMAND "${CMAKE_COMMAND}" -E env "DESTDIR=${destdir}"
      "${CMAKE_COMMAND}" --build "${build}" --target install)
endfunction()
