# Counts of the source's own conditions, as clang's front end sees them. Counters in the object code
# would also ask for the branches of every exception that nobody throws.
if(KELP_QUILL_INP_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()
