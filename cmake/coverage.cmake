# Counts the conditions that are in the source, as clang's front end sees them. Counters in the object
# code would also count the branches for exceptions that are never thrown.
if(KELP_QUILL_INP_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()
