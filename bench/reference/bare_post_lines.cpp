#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "reference/bare_loops.hpp"

namespace kelp::input::quill::bench {

namespace {

constexpr std::size_t integer_size = 11;
constexpr std::size_t scan_value_size = 13;

// Every number has a blank before it.
constexpr std::size_t line_size_without_atoms = 1 + (1 + scan_value_size) + (1 + integer_size) + 1;

char keyword_of(PostCommandKind kind) {
  switch (kind) {
    case PostCommandKind::AtomConstraint:
      return 'C';
    case PostCommandKind::BondConstraint:
      return 'B';
    case PostCommandKind::AngleConstraint:
      return 'A';
    case PostCommandKind::DihedralConstraint:
      return 'D';
    default:
      return 'S';
  }
}

char* write_integer(char* out, std::int32_t number) {
  *out++ = ' ';
  return std::to_chars(out, out + integer_size, number).ptr;
}

char* write_scan_value(char* out, double value) {
  *out++ = ' ';
  return std::to_chars(out, out + scan_value_size, value, std::chars_format::general, 6).ptr;
}

char* write_line(char* out, const PostCommand& command) {
  *out++ = keyword_of(command.kind);
  for (const std::int32_t number : command.atom_indices) out = write_integer(out, number);
  if (command.scan_value) out = write_scan_value(out, *command.scan_value);
  if (command.scan_steps) out = write_integer(out, *command.scan_steps);
  *out++ = '\n';
  return out;
}

}  // namespace

std::string write_constraints_and_scans(const std::vector<PostCommand>& lines) {
  std::size_t room = 0;
  for (const PostCommand& line : lines)
    room += line_size_without_atoms + line.atom_indices.size() * (1 + integer_size);
  std::string text(room, '\0');
  char* end = text.data();
  for (const PostCommand& line : lines) end = write_line(end, line);
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

}  // namespace kelp::input::quill::bench
