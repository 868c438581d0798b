include(CheckLinkerFlag)

# Links libraries so that programs which link the target need them directly, even if they use none of
# their functions. The run path of a program is used to find only the libraries that it needs directly.
# Sister libraries from another installation are in a folder that the run path of this library does not
# name, and packagers may leave the run paths out: without this, a program would start only if all
# libraries are in folders that the dynamic linker searches by default.
#
# The files are named once more, in an option: of what is linked, CMake moves and joins the libraries
# that several targets have in common, and so takes them out of reach of flags beside them.
function(kelp_quill_inp_link_needed target)
  target_link_libraries(${target} PUBLIC ${ARGN})
  get_target_property(type ${target} TYPE)
  set(begin -Wl,--push-state,--no-as-needed)
  check_linker_flag(CXX "${begin},--pop-state" KELP_QUILL_INP_LINKER_DROPS_UNUSED_LIBRARIES)
  if(type STREQUAL "SHARED_LIBRARY" AND KELP_QUILL_INP_LINKER_DROPS_UNUSED_LIBRARIES)
    list(TRANSFORM ARGN REPLACE "(.+)" "$<TARGET_FILE:\\1>" OUTPUT_VARIABLE files)
    list(JOIN files "," files)
    target_link_options(${target} INTERFACE "${begin},${files},--pop-state")
  endif()
endfunction()
