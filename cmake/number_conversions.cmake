# Whether the standard library converts between texts and doubles as <charconv> promises. Some do not
# yet: a release of libc++ may have no std::from_chars for double, or neither of the two. There
# fast_float reads and the facet of the streams writes, to the same result. The compiler is asked by
# compiling, since a version number says nothing about a distribution's own changes.
include(CheckSourceCompiles)

block()
  set(CMAKE_CXX_STANDARD 17)
  check_source_compiles(CXX "
    #include <charconv>
    int main(int count, char** texts) {
      double value = 0.0;
      return std::from_chars(texts[0], texts[0] + count, value).ptr == texts[0] ? 1 : 0;
    }
  " KELP_QUILL_INP_HAS_FROM_CHARS)
  check_source_compiles(CXX "
    #include <charconv>
    int main(int count, char** texts) {
      const double value = count;
      char* const begin = texts[0];
      char* const end = begin + count;
      return std::to_chars(begin, end, value, std::chars_format::fixed, 6).ptr ==
             std::to_chars(begin, end, value).ptr ? 1 : 0;
    }
  " KELP_QUILL_INP_HAS_TO_CHARS)
endblock()

if(NOT KELP_QUILL_INP_HAS_FROM_CHARS)
  find_path(KELP_QUILL_INP_FAST_FLOAT_INCLUDE_DIR fast_float/fast_float.h REQUIRED
    DOC "The folder of the headers of fast_float, for a standard library that reads no doubles")
  mark_as_advanced(KELP_QUILL_INP_FAST_FLOAT_INCLUDE_DIR)
endif()

# The sources by which floating-point numbers are spelled, for each library that spells them.
set(writer "${PROJECT_SOURCE_DIR}/src/writer")
if(KELP_QUILL_INP_HAS_TO_CHARS)
  set(finite_text "${writer}/finite_text_charconv.cpp")
else()
  set(finite_text "${writer}/finite_text_stream.cpp")
endif()
set(KELP_QUILL_INP_FLOATING_POINT_TEXT "${writer}/floating_point_text.cpp" "${finite_text}")
