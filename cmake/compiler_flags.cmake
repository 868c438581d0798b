# What the compiler is told, apart from what makes shipped programs harder to attack, which is in
# hardening.cmake.

# The warnings that every target of this project is built with.
function(kelp_quill_inp_set_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual
    -Wformat=2 -Wdouble-promotion
    $<$<CXX_COMPILER_ID:GNU>:-Wnull-dereference -Wduplicated-cond -Wlogical-op -Wuseless-cast>
    $<$<BOOL:${KELP_QUILL_INP_WARNINGS_AS_ERRORS}>:-Werror>
  )
endfunction()

# The same sources give the same bytes in whatever folder they are built: no path of the machine gets
# into objects or into the run paths of what is built. A debug build keeps the paths, so that a
# debugger finds the sources.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
add_compile_options(
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>"
  "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>"
)

# Sanitizers concern the whole program, so they are set for everything built in this tree.
if(KELP_QUILL_INP_SANITIZERS)
  add_compile_options(-fsanitize=${KELP_QUILL_INP_SANITIZERS} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KELP_QUILL_INP_SANITIZERS})
endif()

# Counts of the source's own conditions, as clang's front end sees them. Counters in the object code
# would also ask for the branches of every exception that nobody throws.
if(KELP_QUILL_INP_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()
