#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_COORDINATE_SURGERY_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_COORDINATE_SURGERY_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "editing/edited_lines.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lossless {

/// Changes the coordinate section of a text to that of an edited document. Atoms and references
/// that are the same at both ends of the list, or in the same place, keep their lines.
class CoordinateSurgery {
 public:
  /// `after` is the geometry of `read` after the edits. Keeps references to both.
  CoordinateSurgery(const ReadText& read, const GeometryBlock& after);

  void change_lines(EditedLines& lines);

  /// Adds lines; those of a section that the text does not have go into the gap `end_of_header`.
  void add_lines(EditedLines& lines, std::size_t end_of_header) const;

 private:
  bool has_section() const { return charge_line_ || !part_lines_.empty() || !idle_lines_.empty(); }

  void change_charge_line(EditedLines& lines) const;
  void change_parts(EditedLines& lines);
  void remove_idle_lines(EditedLines& lines) const;
  void add_charge_line(EditedLines& lines, std::size_t gap) const;
  void add_parts(EditedLines& lines, std::size_t gap) const;
  std::size_t first_line() const;
  std::size_t gap_after_parts(std::size_t count) const;

  const GeometryBlock& before_;
  const GeometryBlock& after_;
  std::optional<std::size_t> charge_line_;
  std::vector<std::size_t> part_lines_;  // the lines of atoms, or of references with a path
  std::vector<std::size_t> idle_lines_;  // references without a path, which have no effect
  bool adds_charge_line_ = false;
  // The parts of `after_` that are added, and as many old parts are before them.
  std::size_t added_begin_ = 0;
  std::size_t added_end_ = 0;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_COORDINATE_SURGERY_HPP
