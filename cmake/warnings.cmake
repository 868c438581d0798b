# The compiler warnings for every target of this project.
function(kelp_quill_inp_set_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual
    -Wformat=2 -Wdouble-promotion
    $<$<CXX_COMPILER_ID:GNU>:-Wnull-dereference -Wduplicated-cond -Wlogical-op -Wuseless-cast>
    $<$<BOOL:${KELP_QUILL_INP_WARNINGS_AS_ERRORS}>:-Werror>
  )
endfunction()
