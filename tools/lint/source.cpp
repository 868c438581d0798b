#include "lint/source.hpp"

#include <utility>

#include "lint/odd_characters.hpp"
#include "lint/xyz_frame.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::lint {

namespace {

Reference read_reference(const Options& options, const std::string& path) {
  Reference reference{options.read_reference(path)};
  if (reference.file.state == ReferencedFile::State::Read)
    reference.atoms = count_atoms_of_first_frame(reference.file.content);
  return reference;
}

}  // namespace

Source::Source(const lossless::ReadText& read, const Options& options)
    : read_(read), options_(options) {
  sort_lines();
  find_pieces();
  has_odd_characters_ = next_odd_character(text(), 0).has_value();
  broken_line_ = find_broken_line(read_);
  if (!options_.read_reference) return;
  for (const std::string& path : input().geometry.xyz_files)
    references_.push_back(lint::read_reference(options_, path));
}

Source::~Source() = default;

void Source::sort_lines() {
  atom_lines_.reserve(input().geometry.atoms.size());
  for (std::size_t i = 0; i < lines().size(); ++i) {
    const LineRecord& line = lines()[i];
    if (line.role == LineRole::ChargeAndMultiplicity) charge_line_ = i;
    if (!line.index) continue;
    if (line.role == LineRole::Atom) {
      atom_lines_.push_back(i);
    } else if (line.role == LineRole::Command) {
      command_lines_.push_back(i);
    } else if (line.role == LineRole::PostCommand) {
      post_lines_.push_back(i);
    } else {
      reference_lines_.push_back(i);
    }
  }
}

void Source::find_pieces() {
  header_pieces_.reserve(command_lines_.size());
  for (const std::size_t line : command_lines_) {
    HeaderPieces pieces = find_header_pieces(content(line));
    pieces.name = trimmed_view(pieces.name);
    pieces.value = trimmed_view(pieces.value);
    pieces.trailing = trimmed_view(pieces.trailing);
    header_pieces_.push_back(pieces);
  }
}

std::string_view Source::content(std::size_t line) const {
  return lossless::content_of(lines()[line], text());
}

std::string_view Source::trimmed(std::size_t line) const { return trimmed_view(content(line)); }

Range Source::range_of(std::string_view piece) const {
  return {static_cast<std::size_t>(piece.data() - text().data()), piece.size()};
}

std::optional<std::size_t> Source::count_atoms() const {
  const GeometryBlock& geometry = input().geometry;
  if (broken_line_) return std::nullopt;
  if (geometry.kind == GeometryKind::Atoms) return geometry.atoms.size();
  if (references_.size() == 1) return references_.front().atoms;
  return std::nullopt;
}

}  // namespace kelp::input::quill::lint
