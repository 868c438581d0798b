#include "lint/wording.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "editing/phrases.hpp"
#include "lint/rule.hpp"

namespace kelp::input::quill::lint {

namespace {

struct ValueText {
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return lossless::rounded_text(number); }
  std::string operator()(const std::string& text) const { return text; }
};

const Fact* find_fact(const std::vector<Fact>& facts, std::string_view name) {
  const auto fact =
      std::find_if(facts.begin(), facts.end(), [&](const Fact& each) { return each.name == name; });
  return fact == facts.end() ? nullptr : &*fact;
}

/// Returns the position after the bracket that closes the one at `open`.
std::size_t after_closing(std::string_view pattern, std::size_t open) {
  const char opening = pattern[open];
  const char closing = opening == '{' ? '}' : ']';
  std::size_t depth = 0;
  for (std::size_t i = open; i < pattern.size(); ++i) {
    if (pattern[i] == opening) ++depth;
    if (pattern[i] == closing && --depth == 0) return i + 1;
  }
  return pattern.size();
}

/// Splits a choice at the bars that are not inside braces in it.
std::vector<std::string_view> cut_choice(std::string_view choice) {
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  std::size_t depth = 0;
  for (std::size_t i = 0; i < choice.size(); ++i) {
    if (choice[i] == '{') ++depth;
    if (choice[i] == '}') --depth;
    if (choice[i] != '|' || depth > 0) continue;
    parts.push_back(choice.substr(start, i - start));
    start = i + 1;
  }
  parts.push_back(choice.substr(start));
  return parts;
}

/// The words of a choice for a count, or nothing if it has none.
std::optional<std::string_view> chosen_words(const std::vector<std::string_view>& parts,
                                             std::int64_t count) {
  if (count == 0 && parts.size() < 4) return std::nullopt;
  if (count == 0) return parts[3];
  return parts[count == 1 ? 1 : 2];
}

std::optional<std::string> fill(std::string_view pattern, const std::vector<Fact>& facts,
                                bool has_choices);

/// Returns what stands for the content of a pair of braces.
std::optional<std::string> fill_braces(std::string_view content, const std::vector<Fact>& facts,
                                       bool has_choices) {
  const std::vector<std::string_view> parts = cut_choice(content);
  const Fact* fact = find_fact(facts, parts[0]);
  if (fact == nullptr) return std::nullopt;
  if (parts.size() == 1 || !has_choices) return std::visit(ValueText(), fact->value);
  const auto words = chosen_words(parts, std::get<std::int64_t>(fact->value));
  if (!words) return std::nullopt;
  return fill(*words, facts, false);
}

/// `has_choices` is false within a choice, which cannot contain another one.
std::optional<std::string> fill(std::string_view pattern, const std::vector<Fact>& facts,
                                bool has_choices) {
  std::string text;
  for (std::size_t i = 0; i < pattern.size();) {
    if (pattern[i] != '{' && pattern[i] != '[') {
      text += pattern[i++];
      continue;
    }
    const std::size_t end = after_closing(pattern, i);
    const std::string_view content = pattern.substr(i + 1, end - i - 2);
    const bool is_optional = pattern[i] == '[';
    const auto words =
        is_optional ? fill(content, facts, has_choices) : fill_braces(content, facts, has_choices);
    if (!words && !is_optional) return std::nullopt;
    text += words.value_or("");
    i = end;
  }
  return text;
}

}  // namespace

FindingWords words_of(const Finding& finding) {
  const Rule* rule = find_rule(finding.code);
  if (rule == nullptr) return {};
  return {filled(rule->message, finding.facts), filled(rule->advice, finding.facts)};
}

std::string filled(std::string_view pattern, const std::vector<Fact>& facts) {
  return fill(pattern, facts, true).value_or("");
}

}  // namespace kelp::input::quill::lint
