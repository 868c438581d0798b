# What a version promises. Every data type has public members, and its layout is compiled into the
# programs that use it, so an added member breaks them: until 1.0 any minor version may do that,
# afterwards only a major one.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(KELP_QUILL_INP_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  set(KELP_QUILL_INP_COMPATIBILITY SameMinorVersion)
else()
  set(KELP_QUILL_INP_SOVERSION ${PROJECT_VERSION_MAJOR})
  set(KELP_QUILL_INP_COMPATIBILITY SameMajorVersion)
endif()
