include(CheckLinkerFlag)

# Links libraries so that programs which link the target name them as well, even if they use none of
# their functions. The run path of a program leads to the libraries that it names itself, not to
# those that its libraries name, and nothing installed has a run path of its own: without this a
# program would start only where the dynamic linker looks by itself.
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
