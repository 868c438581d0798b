include(CheckLinkerFlag)

# Links libraries so that programs which link the target need them directly, even if they use none of
# their functions. The run path of a program is used to find only the libraries that it needs directly.
# Sister libraries from another installation are in a folder that the run path of this library does not
# name, and packagers may leave the run paths out: without this, a program would start only if all
# libraries are in folders that the dynamic linker searches by default.
function(kelp_quill_inp_link_needed target)
  get_target_property(type ${target} TYPE)
  set(begin -Wl,--push-state,--no-as-needed)
  set(end -Wl,--pop-state)
  check_linker_flag(CXX "${begin},--pop-state" KELP_QUILL_INP_LINKER_DROPS_UNUSED_LIBRARIES)
  if(type STREQUAL "SHARED_LIBRARY" AND KELP_QUILL_INP_LINKER_DROPS_UNUSED_LIBRARIES)
    target_link_libraries(${target} PUBLIC ${begin} ${ARGN} ${end})
  else()
    target_link_libraries(${target} PUBLIC ${ARGN})
  endif()
endfunction()
