#ifndef KELP_INPUT_QUILL_TESTS_PYTHON_CALL_WORDS_HPP
#define KELP_INPUT_QUILL_TESTS_PYTHON_CALL_WORDS_HPP

#include <cstdint>
#include <cstring>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/formats/json_text.hpp"

// The arguments of a call, as words of a line. A text is `=` and its bytes in hexadecimal, a list
// is its length and its entries, a number that may be missing is `-`, and a double is its bits. A
// part of a document is the JSON of a document with nothing else, as a text.

namespace kelp::input::quill::tests {

class CallWords {
 public:
  explicit CallWords(const std::string& line) : words_(line) {}

  std::string word() {
    std::string word;
    if (!(words_ >> word)) throw std::runtime_error("a word is missing");
    return word;
  }

  std::string text() {
    const std::string given = word();
    std::optional<std::string> bytes = tool::bytes_from_hexadecimal(given.substr(1));
    if (given.front() != '=' || !bytes) throw std::runtime_error("not a text: " + given);
    return std::move(*bytes);
  }

  int number() { return std::stoi(word()); }
  std::uint64_t count() { return std::stoull(word()); }
  std::optional<std::uint64_t> optional_count() {
    const std::string given = word();
    if (given == "-") return std::nullopt;
    return std::stoull(given);
  }

  double real() {
    const std::uint64_t bits = std::stoull(word(), nullptr, 16);
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }

  std::vector<std::string> texts() {
    std::vector<std::string> texts(count());
    for (std::string& one : texts) one = text();
    return texts;
  }

  std::vector<int> numbers() {
    std::vector<int> numbers(count());
    for (int& one : numbers) one = number();
    return numbers;
  }

  QuillInput document() { return tool::document_from_json(text()); }
  std::vector<CommandParameter> parameters() { return document().commands.at(0).parameters; }
  HeaderCommand command() { return document().commands.at(0); }
  AtomRecord atom() { return atoms().at(0); }
  std::vector<AtomRecord> atoms() { return document().geometry.atoms; }
  PostCommand post_command() { return document().post_commands.at(0); }

 private:
  std::istringstream words_;
};

}  // namespace kelp::input::quill::tests

#endif  // KELP_INPUT_QUILL_TESTS_PYTHON_CALL_WORDS_HPP
