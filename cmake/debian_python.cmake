# The Debian package of the Python package. The extension is for the Python that it was built with.
set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)
get_property(python_version GLOBAL PROPERTY KELP_QUILL_INP_PYTHON_VERSION)
string(REGEX MATCH "^3\\.([0-9]+)" python_version "${python_version}")
math(EXPR next_python "${CMAKE_MATCH_1} + 1")
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME ${python_package})
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= ${python_version}~), python3 (<< 3.${next_python})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS python3-numpy)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-ase, python3-pymatgen, python3-rdkit")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
  "${debian_files}/python/postinst;${debian_files}/python/prerm")
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "reader and writer of QUILL inputs, for Python 3
${quill_input}

This package has the module quill_inp, with atoms as arrays of NumPy, and the
exchange of structures with ASE, pymatgen and RDKit.")
