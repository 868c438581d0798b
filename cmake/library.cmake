include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# kelp_quill_inp_add_library(LIBRARY NAME EXPORTS_MAP SOURCE...)
#
# Makes a library of those that are installed, with the alias kelp::NAME: shared or static as the build
# says, with the versions of the project, exporting what the map names. Its headers, its include folders
# and what it links are its own affair.
function(kelp_quill_inp_add_library library name exports_map)
  add_library(${library} ${KELP_QUILL_INP_LIBRARY_TYPE} ${ARGN})
  add_library(kelp::${name} ALIAS ${library})
  set_target_properties(${library} PROPERTIES
    EXPORT_NAME ${name}
    LINKER_LANGUAGE CXX
    CXX_EXTENSIONS OFF
    POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${KELP_QUILL_INP_SOVERSION}
  )
  target_compile_features(${library} PUBLIC cxx_std_17)
  target_include_directories(${library} PUBLIC
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  kelp_quill_inp_set_warnings(${library})
  if(KELP_QUILL_INP_LIBRARY_TYPE STREQUAL "STATIC")
    kelp_quill_inp_hide_symbols(${library})
    kelp_quill_inp_keep_out_of_exports(${library})
  else()
    kelp_quill_inp_limit_exports(${library} "${exports_map}")
  endif()
  set_property(GLOBAL APPEND PROPERTY KELP_QUILL_INP_LIBRARIES ${library})
endfunction()

# For code that becomes a part of other libraries: a plugin offers its own functions and not these, and
# it can be unloaded. The compiler of GCC marks some constants of templates and inline variables as
# unique in the process, and the C library never unloads what has one.
function(kelp_quill_inp_hide_symbols target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
  )
  check_cxx_compiler_flag(-fno-gnu-unique KELP_QUILL_INP_HAS_NO_GNU_UNIQUE)
  if(KELP_QUILL_INP_HAS_NO_GNU_UNIQUE)
    target_compile_options(${target} PRIVATE -fno-gnu-unique)
  endif()
endfunction()

# Hidden visibility does not reach instances of the standard library's templates, whose namespace is
# declared to be visible. The linker of a shared library that contains the static one leaves them out.
function(kelp_quill_inp_keep_out_of_exports library)
  check_linker_flag(CXX "-Wl,--exclude-libs,libnone.a" KELP_QUILL_INP_LINKER_EXCLUDES_LIBRARIES)
  if(KELP_QUILL_INP_LINKER_EXCLUDES_LIBRARIES)
    target_link_options(${library} INTERFACE
      "LINKER:--exclude-libs,${CMAKE_STATIC_LIBRARY_PREFIX}${library}${CMAKE_STATIC_LIBRARY_SUFFIX}")
  endif()
endfunction()
