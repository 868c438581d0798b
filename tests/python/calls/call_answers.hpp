#ifndef KELP_INPUT_QUILL_TESTS_PYTHON_CALL_ANSWERS_HPP
#define KELP_INPUT_QUILL_TESTS_PYTHON_CALL_ANSWERS_HPP

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/document_json.hpp"

// What calls return, and documents, as JSON on one line.

namespace kelp::input::quill::tests {

inline const std::string nothing = "null";

inline std::string json_of(bool value) { return value ? "true" : "false"; }

/// The bytes in hexadecimal, since a text may hold any.
inline std::string json_of(const std::string& text) {
  constexpr const char* digits = "0123456789abcdef";
  std::string json = "\"";
  for (const char byte : text) {
    const auto value = static_cast<unsigned char>(byte);
    json += {digits[value / 16], digits[value % 16]};
  }
  return json + '"';
}

inline std::string json_of(const std::optional<std::string>& text) {
  return text ? json_of(*text) : nothing;
}

inline std::string json_of(const std::vector<std::string>& texts) {
  std::string json;
  for (const std::string& text : texts) json += (json.empty() ? "[" : ",") + json_of(text);
  return texts.empty() ? "[]" : json + "]";
}

/// The JSON of the tool, on one line: its line ends are between members only.
inline std::string json_of(const QuillInput& input) {
  std::string json;
  tool::write_document_json(input, [&](std::string_view piece) { json += piece; });
  for (char& byte : json) {
    if (byte == '\n') byte = ' ';
  }
  return json;
}

inline std::string content_of(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kelp::input::quill::tests

#endif  // KELP_INPUT_QUILL_TESTS_PYTHON_CALL_ANSWERS_HPP
