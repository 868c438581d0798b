# Where files are installed, in components: runtime (what programs load), development (what is needed
# to build them), tool (the program quill-inp), python (the package) and documentation.
if(NOT KELP_QUILL_INP_INSTALL)
  return()
endif()

include(cmake/install_library.cmake)

if(KELP_QUILL_INP_BUNDLED_SISTERS)
  kelp_quill_inp_install_library(kelp_core_text
    "Text functions that give the same answer in every locale")
  kelp_quill_inp_install_library(kelp_chem_elements
    "The chemical elements by symbol")
endif()
kelp_quill_inp_install_library(kelp_quill_inp "${PROJECT_DESCRIPTION}"
  kelp_core_text kelp_chem_elements)
kelp_quill_inp_install_library(kelp_quill_lossless
  "Edits QUILL input files and keeps what the edit does not concern"
  kelp_quill_inp kelp_core_text kelp_chem_elements)

if(KELP_QUILL_INP_BUILD_TOOLS)
  include(cmake/install_tool.cmake)
endif()
if(KELP_QUILL_INP_BUILD_PYTHON)
  include(cmake/install_python.cmake)
endif()

# What README.md links to is installed next to it.
install(FILES CONTRIBUTING.md SECURITY.md
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation)
install(DIRECTORY editors
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation
  PATTERN "vscode" EXCLUDE)
install(FILES editors/vscode/README.md
  DESTINATION "${CMAKE_INSTALL_DOCDIR}/editors/vscode" COMPONENT documentation)
# In Debian's packages, debian.cmake installs these two: the changelog has another name there.
if(NOT KELP_QUILL_INP_DEBIAN_PACKAGES)
  install(FILES README.md CHANGELOG.md
    DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation)
endif()
install(DIRECTORY docs
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation
  FILES_MATCHING PATTERN "*.md" PATTERN "*.json"
  PATTERN "man" EXCLUDE PATTERN "site" EXCLUDE)
install(DIRECTORY examples
  DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT documentation
  PATTERN "CMakeLists.txt" EXCLUDE)
