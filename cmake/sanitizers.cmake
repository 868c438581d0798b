# Sanitizers affect the whole program, so they are set for everything built in this tree.
if(KELP_QUILL_INP_SANITIZERS)
  add_compile_options(-fsanitize=${KELP_QUILL_INP_SANITIZERS} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KELP_QUILL_INP_SANITIZERS})
endif()
