#include "language_server/facts/mentions.hpp"

#include "lint/lint.hpp"

namespace kelp::input::quill::language_server {

std::optional<std::size_t> line_at(const lossless::ReadText& read, std::size_t offset) {
  if (read.lines.empty()) return std::nullopt;
  return lint::place_of(offset, read.lines).line - 1;
}

std::optional<lint::AtomNumber> find_atom_number(const lint::Source& source, std::size_t offset) {
  const std::optional<std::size_t> line = line_at(source.read(), offset);
  if (!line || source.lines()[*line].role != LineRole::PostCommand) return std::nullopt;
  for (const lint::AtomNumber& number : atom_numbers_of(source, *source.lines()[*line].index)) {
    const lint::Range range = source.range_of(number.token);
    if (range.offset <= offset && offset <= range.end()) return number;
  }
  return std::nullopt;
}

std::optional<std::int32_t> find_meant_atom(const lint::Source& source, std::size_t offset) {
  const std::optional<std::size_t> line = line_at(source.read(), offset);
  if (line && source.lines()[*line].role == LineRole::Atom)
    return static_cast<std::int32_t>(*source.lines()[*line].index + 1);
  const std::optional<lint::AtomNumber> number = find_atom_number(source, offset);
  return number ? std::optional<std::int32_t>(number->number) : std::nullopt;
}

std::vector<lint::Range> find_mentions(const lint::Source& source, std::int32_t atom) {
  std::vector<lint::Range> places;
  for_each_atom_number(source, [&](const lint::AtomNumber& number) {
    if (number.number == atom) places.push_back(source.range_of(number.token));
  });
  return places;
}

std::optional<lint::Range> find_atom_line(const lint::Source& source, std::int32_t atom) {
  const bool is_there = atom >= 1 && static_cast<std::size_t>(atom) <= source.atom_lines().size();
  if (!is_there) return std::nullopt;
  return source.range_of(source.trimmed(source.atom_lines()[static_cast<std::size_t>(atom) - 1]));
}

}  // namespace kelp::input::quill::language_server
