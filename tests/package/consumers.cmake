# Consumers, built in C++17 and C++20 and run, by each way to find the library.

# add_consumer(WAY FIXTURE VARIANT COMMAND...): the test of one consumer, after the libraries are there.
function(add_consumer way fixture variant)
  set(name Consumer.with_${way}.${fixture}${variant})
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()

# add_scripted_consumer(WAY FIXTURE COMPILER PLACE): runs with_WAY.sh with the place of the libraries and a
# folder to build in.
function(add_scripted_consumer way fixture compiler place)
  add_consumer(${way} ${fixture} .${compiler}
    sh "${PROJECT_SOURCE_DIR}/with_${way}.sh" ${compiler} "${place}"
      "${PROJECT_BINARY_DIR}/consumers/Consumer.with_${way}.${fixture}.${compiler}")
endfunction()

function(consume_with_cmake fixture compiler)
  add_consumer(cmake ${fixture} .${compiler}
    "${CMAKE_CTEST_COMMAND}"
      --build-and-test "${PROJECT_SOURCE_DIR}/consumer"
        "${PROJECT_BINARY_DIR}/consumers/Consumer.with_cmake.${fixture}.${compiler}"
      --build-generator Ninja --build-noclean
      --build-options -DCMAKE_CXX_COMPILER=${compiler} ${ARGN}
      --test-command "${CMAKE_CTEST_COMMAND}" --output-on-failure --no-tests=error)
endfunction()

function(consume_with_meson fixture compiler library_folder)
  add_scripted_consumer(meson ${fixture} ${compiler} "${library_folder}/pkgconfig")
endfunction()

function(consume_with_pkg_config fixture compiler library_folder)
  add_scripted_consumer(pkg_config ${fixture} ${compiler} "${library_folder}/pkgconfig")
endfunction()

function(consume_with_archives fixture compiler prefix)
  add_scripted_consumer(archives ${fixture} ${compiler} "${prefix}")
endfunction()

# Loads the library by itself, as programs in other languages do.
function(consume_with_ctypes fixture library_folder)
  add_consumer(ctypes ${fixture} ""
    /usr/bin/python3 -c "import ctypes\nctypes.CDLL('${library_folder}/libkelp_quill_inp.so')")
endfunction()
