#include <iterator>
#include <string>

#include "kelp/core/text.hpp"
#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill::lint {

namespace {

using Tokens = std::vector<std::string_view>;

/// The shape of a line that has a keyword which is probably intended: a number after it, or nothing
/// at all. "A note" is text.
const PostLineShape* find_meant_shape(const Tokens& tokens) {
  const PostLineShape* shape = find_post_line_shape(core::text::to_upper_copy(tokens[0]));
  const bool is_meant = tokens.size() == 1 || is_number(tokens[1]);
  return is_meant ? shape : nullptr;
}

constexpr std::string_view wanted_words[] = {
    "one atom number",
    "two atom numbers",
    "three atom numbers",
    "four atom numbers",
    "two to four atom numbers, a value and a number of steps",
    "a path"};

constexpr std::string_view count_words[] = {"none", "one", "two",   "three", "four",
                                            "five", "six", "seven", "eight", "nine"};

std::string words_of_count(std::size_t count) {
  return count < std::size(count_words) ? std::string(count_words[count]) : std::to_string(count);
}

}  // namespace

// Another rule reports a line that ended the atoms, and the lines after it that look like atoms.
void check_wrong_field_count(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    if (source.input().post_commands[i].kind != PostCommandKind::Raw) continue;
    const std::size_t line = source.post_lines()[i];
    if (source.broken_line() && resembles_atom_line(source.content(line))) continue;
    const Tokens tokens = tokens_of(source.content(line));
    const PostLineShape* shape = find_meant_shape(tokens);
    if (shape == nullptr) continue;
    findings.add({source.range_of(source.trimmed(line)),
                  {text_fact("keyword", shape->keyword),
                   text_fact("wanted", wanted_words[static_cast<std::size_t>(shape->kind)]),
                   text_fact("found", words_of_count(tokens.size() - 1))}});
  }
}

}  // namespace kelp::input::quill::lint
