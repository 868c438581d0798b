#include "quill-inp/command_line/post_options.hpp"

#include <cstddef>

#include "kelp/core/text.hpp"
#include "model/post_line_shapes.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

std::vector<Option> post_options() {
  std::vector<Option> options;
  options.reserve(post_line_shapes.size());
  for (const PostLineShape& shape : post_line_shapes)
    options.push_back({shape.option, shape.placeholder, shape.help});
  return options;
}

/// What the option of a constraint takes, by the number of its atoms.
constexpr std::string_view constraint_examples[] = {
    "", "an atom number, such as '1'", "two atom numbers, such as '1,2'",
    "three atom numbers, such as '1,2,3'", "four atom numbers, such as '1,2,3,4'"};

constexpr std::string_view scan_example =
    "two to four atom numbers, a value and a number of steps, such as '1,2:1.5:10'";

[[noreturn]] void throw_expected(const std::string& option, std::string_view expected,
                                 std::string_view text) {
  throw UsageError(option + " takes " + std::string(expected) + ", not '" + std::string(text) +
                   "'");
}

const PostLineShape& find_shape(const std::string& option) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.option == option) return shape;
  }
  return post_line_shapes.back();
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  for (;;) {
    const std::size_t end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

/// Stores atom numbers separated by commas; returns false when one is not a number.
bool read_atoms(std::string_view text, std::vector<std::int32_t>& atoms) {
  for (const std::string_view piece : split(text, ',')) {
    int number = 0;
    if (!core::text::try_parse_int(piece, number)) return false;
    atoms.push_back(number);
  }
  return true;
}

PostCommand parse_constraint(const PostLineShape& shape, const std::string& text) {
  PostCommand command(shape.kind);
  if (!read_atoms(text, command.atom_indices) || command.atom_indices.size() != shape.atoms())
    throw_expected(shape.option, constraint_examples[shape.atoms()], text);
  return command;
}

PostCommand parse_scan(const PostLineShape& shape, const std::string& text) {
  const std::vector<std::string_view> parts = split(text, ':');
  PostCommand command(shape.kind);
  double value = 0.0;
  int steps = 0;
  const bool is_scan = parts.size() == 3 && read_atoms(parts[0], command.atom_indices) &&
                       2 <= command.atom_indices.size() && command.atom_indices.size() <= 4 &&
                       core::text::try_parse_double(parts[1], value) &&
                       core::text::try_parse_int(parts[2], steps);
  if (!is_scan) throw_expected(shape.option, scan_example, text);
  command.scan_value = value;
  command.scan_steps = steps;
  return command;
}

}  // namespace

void add_post_options(CLI::App& verb) {
  for (const Option& option : post_options()) add_repeated(verb, option);
}

std::vector<PostCommand> read_post_commands(const CLI::App& verb) {
  std::vector<PostCommand> commands;
  for (const OptionUse& use : uses_in_order(verb, post_options()))
    commands.push_back(parse_post_argument(use.name, use.value));
  return commands;
}

std::int32_t parse_integer(const std::string& option, std::string_view text) {
  int number = 0;
  if (!core::text::try_parse_int(text, number)) throw_expected(option, "an integer", text);
  return number;
}

PostCommand parse_post_argument(const std::string& option, const std::string& text) {
  const PostLineShape& shape = find_shape(option);
  PostCommand command(shape.kind);
  switch (shape.kind) {
    case PostCommandKind::Scan:
      return parse_scan(shape, text);
    case PostCommandKind::PostFile:
      command.post_file = text;
      return command;
    case PostCommandKind::Raw:
      command.raw_text = text;
      return command;
    default:
      return parse_constraint(shape, text);
  }
}

}  // namespace kelp::input::quill::tool
