# Runs PROGRAM with ARGUMENTS in FOLDER, by EMULATOR if there is one, and compares what it prints and
# writes, and its exit status, with the files of the folder GOLDEN: stdout, stderr, status, and output
# if it writes a file. KELP_QUILL_INP_COPIED_INPUT in the environment names the input that output is a
# copy of before.
# A golden file that is missing is a failure. With KELP_QUILL_INP_REFRESH_GOLDEN in the environment
# the golden files are replaced instead, to be reviewed as a difference before they are committed.

file(REMOVE_RECURSE "${SCRATCH}")
file(MAKE_DIRECTORY "${SCRATCH}")
if(DEFINED ENV{KELP_QUILL_INP_COPIED_INPUT})
  configure_file("${FOLDER}/$ENV{KELP_QUILL_INP_COPIED_INPUT}" "${SCRATCH}/output" COPYONLY)
endif()
string(REPLACE "@OUTPUT@" "${SCRATCH}/output" ARGUMENTS "${ARGUMENTS}")
execute_process(
  COMMAND ${EMULATOR} "${PROGRAM}" ${ARGUMENTS}
  WORKING_DIRECTORY "${FOLDER}"
  OUTPUT_FILE "${SCRATCH}/stdout"
  ERROR_FILE "${SCRATCH}/stderr"
  RESULT_VARIABLE status
)
file(WRITE "${SCRATCH}/status" "${status}\n")

if(DEFINED ENV{KELP_QUILL_INP_REFRESH_GOLDEN})
  file(REMOVE_RECURSE "${GOLDEN}")
  file(COPY "${SCRATCH}/" DESTINATION "${GOLDEN}")
  return()
endif()

file(GLOB expected RELATIVE "${GOLDEN}" "${GOLDEN}/*")
file(GLOB actual RELATIVE "${SCRATCH}" "${SCRATCH}/*")
if(NOT expected OR NOT expected STREQUAL actual)
  message(FATAL_ERROR "expected the files [${expected}] of ${GOLDEN}, got [${actual}]")
endif()
foreach(name IN LISTS expected)
  file(SHA256 "${GOLDEN}/${name}" expected_hash)
  file(SHA256 "${SCRATCH}/${name}" actual_hash)
  if(NOT expected_hash STREQUAL actual_hash)
    execute_process(COMMAND diff -u "${GOLDEN}/${name}" "${SCRATCH}/${name}")
    message(SEND_ERROR "${name} differs from ${GOLDEN}/${name}")
  endif()
endforeach()
