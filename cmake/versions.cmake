# What a version promises. Every data type has public members and is laid out by the programs that
# use it, so an added member breaks them: until 1.0 any minor version may do so, afterwards a major
# one only.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(KELP_QUILL_INP_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  set(KELP_QUILL_INP_COMPATIBILITY SameMinorVersion)
else()
  set(KELP_QUILL_INP_SOVERSION ${PROJECT_VERSION_MAJOR})
  set(KELP_QUILL_INP_COMPATIBILITY SameMajorVersion)
endif()
