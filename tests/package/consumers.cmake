# Consumers, built in C++17 and C++20 and run, by each way to find the library.

function(consume_with_cmake fixture compiler)
  set(name Consumer.with_cmake.${fixture}.${compiler})
  add_test(NAME ${name}
    COMMAND "${CMAKE_CTEST_COMMAND}"
      --build-and-test "${PROJECT_SOURCE_DIR}/consumer" "${PROJECT_BINARY_DIR}/consumers/${name}"
      --build-generator Ninja --build-noclean
      --build-options -DCMAKE_CXX_COMPILER=${compiler} ${ARGN}
      --test-command "${CMAKE_CTEST_COMMAND}" --output-on-failure --no-tests=error)
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()

function(consume_with_meson fixture compiler library_folder)
  set(name Consumer.with_meson.${fixture}.${compiler})
  add_test(NAME ${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/with_meson.sh" ${compiler} "${library_folder}/pkgconfig"
      "${PROJECT_BINARY_DIR}/consumers/${name}")
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()

# Loads the library by itself, as programs in other languages do.
function(consume_with_ctypes fixture library_folder)
  set(name Consumer.with_ctypes.${fixture})
  add_test(NAME ${name}
    COMMAND python3 -c "import ctypes; ctypes.CDLL('${library_folder}/libkelp_quill_inp.so')")
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()

function(consume_with_archives fixture compiler prefix)
  set(name Consumer.with_archives.${fixture}.${compiler})
  add_test(NAME ${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/with_archives.sh" ${compiler} "${prefix}"
      "${PROJECT_BINARY_DIR}/consumers/${name}")
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()

function(consume_with_pkg_config fixture compiler library_folder)
  set(name Consumer.with_pkg_config.${fixture}.${compiler})
  add_test(NAME ${name}
    COMMAND sh "${PROJECT_SOURCE_DIR}/with_pkg_config.sh" ${compiler} "${library_folder}/pkgconfig"
      "${PROJECT_BINARY_DIR}/consumers/${name}")
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED "${fixture}")
endfunction()
