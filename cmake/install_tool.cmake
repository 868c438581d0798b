# The program, its manual page, and what shells need to complete its command lines.
install(TARGETS quill-inp RUNTIME COMPONENT tool)

# kelp_quill_inp_install_for_tool(FILE FOLDER [RENAME NAME])
function(kelp_quill_inp_install_for_tool file folder)
  if(EXISTS "${PROJECT_SOURCE_DIR}/${file}")
    install(FILES "${file}" DESTINATION "${folder}" COMPONENT tool ${ARGN})
  endif()
endfunction()

kelp_quill_inp_install_for_tool(docs/man/quill-inp.1 "${CMAKE_INSTALL_MANDIR}/man1")

set(completions tools/quill-inp/completions)
kelp_quill_inp_install_for_tool(${completions}/quill-inp.bash
  "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME quill-inp)
kelp_quill_inp_install_for_tool(${completions}/_quill-inp
  "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
kelp_quill_inp_install_for_tool(${completions}/quill-inp.fish
  "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
