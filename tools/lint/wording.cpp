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

/// Cuts a choice at the bars that are in no braces of its own.
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

using Words = std::optional<std::string>;

/// Returns what takes the place of a bracket's content, or nothing if a fact for it is missing.
using Fill = Words (*)(std::string_view content, const std::vector<Fact>& facts);

/// Replaces all braces in a pattern, and its brackets unless they are plain characters there.
/// Returns nothing if a fact for a brace is missing; brackets whose fact is missing are left out.
Words fill_each(std::string_view pattern, const std::vector<Fact>& facts, Fill braces,
                Fill brackets) {
  std::string text;
  for (std::size_t i = 0; i < pattern.size();) {
    const bool is_bracket = brackets != nullptr && pattern[i] == '[';
    if (pattern[i] != '{' && !is_bracket) {
      text += pattern[i++];
      continue;
    }
    const std::size_t end = after_closing(pattern, i);
    const std::string_view content = pattern.substr(i + 1, end - i - 2);
    const Words words = (is_bracket ? brackets : braces)(content, facts);
    if (!words && !is_bracket) return std::nullopt;
    text += words.value_or("");
    i = end;
  }
  return text;
}

Words fill_value(std::string_view name, const std::vector<Fact>& facts) {
  const Fact* fact = find_fact(facts, name);
  if (fact == nullptr) return std::nullopt;
  return std::visit(ValueText(), fact->value);
}

/// The words of a choice hold values only.
Words fill_value_or_choice(std::string_view content, const std::vector<Fact>& facts) {
  const std::vector<std::string_view> parts = cut_choice(content);
  if (parts.size() == 1) return fill_value(content, facts);
  const Fact* fact = find_fact(facts, parts[0]);
  if (fact == nullptr) return std::nullopt;
  const auto words = chosen_words(parts, std::get<std::int64_t>(fact->value));
  if (!words) return std::nullopt;
  return fill_each(*words, facts, fill_value, nullptr);
}

/// What may be left out holds no brackets of its own.
Words fill_optional(std::string_view content, const std::vector<Fact>& facts) {
  return fill_each(content, facts, fill_value_or_choice, nullptr);
}

}  // namespace

FindingWords words_of(const Finding& finding) {
  const Rule* rule = find_rule(finding.code);
  if (rule == nullptr) return {};
  return {filled(rule->message, finding.facts), filled(rule->advice, finding.facts)};
}

std::string filled(std::string_view pattern, const std::vector<Fact>& facts) {
  return fill_each(pattern, facts, fill_value_or_choice, fill_optional).value_or("");
}

}  // namespace kelp::input::quill::lint
