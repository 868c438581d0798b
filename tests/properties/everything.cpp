#include "properties/everything.hpp"

#include <string>

#include "properties/lookup.hpp"
#include "properties/reading.hpp"
#include "properties/writing.hpp"

namespace kelp::input::quill {

void check_text(std::string_view text) {
  const ParseResult result = parse_string(text);
  check_result(text, result);
  check_lines(text, parse_lines(text));
  check_against_obvious_reader(text, result);
  check_that_layout_does_not_matter(text);
  check_document(result.input);
}

void check_document(const QuillInput& document) {
  const std::string text = document.to_string();
  check_writing(document, text);
  check_against_obvious_writer(document, text);
  check_round_trip(document);
  check_every_lookup(document, document);
}

}  // namespace kelp::input::quill
