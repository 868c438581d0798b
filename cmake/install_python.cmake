# The Python package as Debian has it, with the shared libraries in a package of their own; setup.py makes a
# wheel, which contains them.
if(NOT KELP_QUILL_INP_DEBIAN_PACKAGES)
  return()
endif()

set(CMAKE_INSTALL_PYTHONDIR lib/python3/dist-packages)
set(CMAKE_INSTALL_PYTHONPACKAGEDIR "${CMAKE_INSTALL_PYTHONDIR}/quill_inp")
set(CMAKE_INSTALL_FULL_PYTHONPACKAGEDIR "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_PYTHONPACKAGEDIR}")

install(TARGETS kelp_quill_inp_python
  LIBRARY DESTINATION "${CMAKE_INSTALL_PYTHONPACKAGEDIR}" COMPONENT python)
kelp_quill_inp_install_run_path(kelp_quill_inp_python PYTHONPACKAGEDIR python
  kelp_quill_lossless kelp_quill_inp kelp_core_text kelp_chem_elements)
install(DIRECTORY python/quill_inp/ DESTINATION "${CMAKE_INSTALL_PYTHONPACKAGEDIR}" COMPONENT python
  FILES_MATCHING PATTERN "*.py" PATTERN "*.pyi" PATTERN "py.typed" PATTERN __pycache__ EXCLUDE)

# What an installer of wheels would write: name and version, and where ASE finds the format.
set(described "${PROJECT_BINARY_DIR}/package/kelp_quill_inp-${PROJECT_VERSION}.dist-info")
file(STRINGS pyproject.toml ase_format REGEX "^quill-inp = ")
string(REPLACE "\"" "" ase_format "${ase_format}")
file(WRITE "${described}/METADATA"
  "Metadata-Version: 2.1\nName: kelp-quill-inp\nVersion: ${PROJECT_VERSION}\n"
  "Summary: ${PROJECT_DESCRIPTION}\n")
file(WRITE "${described}/entry_points.txt" "[ase.ioformats]\n${ase_format}\n")
file(WRITE "${described}/INSTALLER" "debian\n")
install(DIRECTORY "${described}" DESTINATION "${CMAKE_INSTALL_PYTHONDIR}" COMPONENT python)
