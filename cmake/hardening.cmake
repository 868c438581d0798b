# Flags that make a memory error end the program, so that an attacker cannot use it. They affect whole
# programs, so they are set for everything built in this tree.
if(NOT KELP_QUILL_INP_HARDENING)
  return()
endif()
if(KELP_QUILL_INP_SANITIZERS)
  message(FATAL_ERROR "KELP_QUILL_INP_HARDENING is for what is shipped and does not go together with "
    "KELP_QUILL_INP_SANITIZERS.")
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)

# The C library's checks need an optimiser, and a default level that the system has set is unset first.
set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
add_compile_options(
  "$<${optimised}:-U_FORTIFY_SOURCE>"
  "$<${optimised}:-D_FORTIFY_SOURCE=3>"
  -D_GLIBCXX_ASSERTIONS
  -fstack-protector-strong
)

# These two exist for some processors only.
check_cxx_compiler_flag(-fstack-clash-protection KELP_QUILL_INP_HAS_STACK_CLASH_PROTECTION)
if(KELP_QUILL_INP_HAS_STACK_CLASH_PROTECTION)
  add_compile_options(-fstack-clash-protection)
endif()
check_cxx_compiler_flag(-fcf-protection=full KELP_QUILL_INP_HAS_CONTROL_FLOW_PROTECTION)
if(KELP_QUILL_INP_HAS_CONTROL_FLOW_PROTECTION)
  add_compile_options(-fcf-protection=full)
endif()

add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack LINKER:-z,defs)

check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
