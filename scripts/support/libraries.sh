# Sourced by the scripts that look at each library: the shared libraries, as paths below a build without
# their ending, each after those that it needs.
shared_libraries=(
  sisters/core_text/libkelp_core_text
  sisters/chem_elements/libkelp_chem_elements
  src/libkelp_quill_inp
  lossless/libkelp_quill_lossless
)
