# The program, its manual page, and its completions for shells.
install(TARGETS quill-inp RUNTIME COMPONENT tool)
kelp_quill_inp_install_run_path(quill-inp BINDIR tool
  kelp_quill_lossless kelp_quill_inp kelp_core_text kelp_chem_elements)

# kelp_quill_inp_install_for_tool(FILE FOLDER [RENAME NAME])
function(kelp_quill_inp_install_for_tool file folder)
  if(EXISTS "${PROJECT_SOURCE_DIR}/${file}")
    install(FILES "${file}" DESTINATION "${folder}" COMPONENT tool ${ARGN})
  endif()
endfunction()

# Debian's packages compress it.
if(NOT KELP_QUILL_INP_DEBIAN_PACKAGES)
  kelp_quill_inp_install_for_tool(docs/man/quill-inp.1 "${CMAKE_INSTALL_MANDIR}/man1")
endif()

set(completions tools/quill-inp/completions)
kelp_quill_inp_install_for_tool(${completions}/quill-inp.bash
  "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME quill-inp)
kelp_quill_inp_install_for_tool(${completions}/_quill-inp
  "${KELP_QUILL_INP_ZSH_COMPLETIONS_DIR}")
kelp_quill_inp_install_for_tool(${completions}/quill-inp.fish
  "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")

# For editors, in the folders where each looks for what packages bring.
foreach(folder IN ITEMS vim/vimfiles nvim/site)
  install(DIRECTORY editors/vim/ DESTINATION "${CMAKE_INSTALL_DATADIR}/${folder}" COMPONENT tool)
endforeach()
install(DIRECTORY editors/neovim/ DESTINATION "${CMAKE_INSTALL_DATADIR}/nvim/site" COMPONENT tool)
kelp_quill_inp_install_for_tool(editors/emacs/quill-mode.el
  "${CMAKE_INSTALL_DATADIR}/emacs/site-lisp")
kelp_quill_inp_install_for_tool(editors/kate/quill.xml
  "${CMAKE_INSTALL_DATADIR}/org.kde.syntax-highlighting/syntax")
