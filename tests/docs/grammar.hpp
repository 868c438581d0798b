#ifndef KELP_INPUT_QUILL_TESTS_DOCS_GRAMMAR_HPP
#define KELP_INPUT_QUILL_TESTS_DOCS_GRAMMAR_HPP

#include <cstddef>
#include <map>
#include <string>

namespace kelp::input::quill {

/// Rules in the notation of RFC 5234, as far as a page needs it: no rule refers to itself, and of
/// the core rules there are ALPHA, DIGIT and OCTET.
class Grammar {
 public:
  /// Takes a block of rules. The next line of a longer rule is indented.
  explicit Grammar(const std::string& rules);

  /// Returns a regular expression for what the rule matches, to be used without regard to case.
  /// Throws std::out_of_range when there is no such rule.
  std::string expression(const std::string& rule) const;

 private:
  std::string alternatives(const std::string& text, std::size_t& at) const;
  std::string repetition(const std::string& text, std::size_t& at) const;
  std::string element(const std::string& text, std::size_t& at) const;

  std::map<std::string, std::string> rules_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_DOCS_GRAMMAR_HPP
