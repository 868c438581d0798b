# The text and element libraries: those of this tree, or those of a family installation.
if(KELP_QUILL_INP_BUNDLED_SISTERS)
  add_subdirectory(sisters/core_text)
  add_subdirectory(sisters/chem_elements)
else()
  find_package(kelp_core_text REQUIRED)
  find_package(kelp_chem_elements REQUIRED)
endif()
