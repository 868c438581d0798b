include(CheckLinkerFlag)

# Limits what a shared library exports to the names in a version script. With hidden visibility alone,
# the library would also export instances of the standard library's templates.
function(kelp_quill_inp_limit_exports target map_file)
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL "SHARED_LIBRARY")
    return()
  endif()
  cmake_path(ABSOLUTE_PATH map_file OUTPUT_VARIABLE map_path)
  check_linker_flag(CXX "-Wl,--version-script,${map_path}" KELP_QUILL_INP_LINKER_HAS_VERSION_SCRIPTS)
  if(KELP_QUILL_INP_LINKER_HAS_VERSION_SCRIPTS)
    target_link_options(${target} PRIVATE "LINKER:--version-script,${map_path}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map_path}")
  endif()
endfunction()
