#ifndef KELP_INPUT_QUILL_LOSSLESS_XYZ_FRAMES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_XYZ_FRAMES_HPP

/// @file
/// Reads the structures of XYZ files, so that their atoms can be copied into inputs.
///
///     const std::string text = "1\nfirst\nHe 0 0 0\n1\nsecond\nHe 0 0 0.5\n";
///     // The last structure of a trajectory.
///     const XyzReading reading = read_xyz_frame(text, -1);
///     if (reading.problem) throw std::runtime_error(words(*reading.problem));
///     reading.frames.front().comment;  // "second"
///
/// A structure, or frame, is a line with the number of its atoms, a line of text, and a line for
/// each atom with a symbol of letters and three coordinates. Other columns are ignored. A
/// trajectory has several frames, one after another; there may be blank lines between them.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// A structure of an XYZ file.
struct XyzFrame {
  std::vector<AtomRecord> atoms = {};  ///< symbols in the letter case of element symbols
  std::string comment = {};            ///< the line before the atoms, without its line end
  std::size_t first_atom_line = 0;     ///< the number, counted from 1, of the line of atoms[0]
};

/// Why a text is not an XYZ file, or not the one that was asked for.
struct XyzProblem {
  /// What is wrong.
  enum class Kind {
    NoCount,       ///< the text does not begin with a number of atoms, 1 or more
    NoNextCount,   ///< the same, for the text after a frame, which is not blank
    TooFewAtoms,   ///< the text ends before the last atom of a frame
    NoAtom,        ///< a line of a frame does not begin with a symbol and three coordinates
    TextAfterEnd,  ///< there is more than the only frame
    NoSuchFrame,   ///< the text has fewer frames
  };

  Kind kind = Kind::NoCount;  ///< what is wrong
  /// The number, counted from 1, of the line with the problem. For a frame with too few atoms, it
  /// is that of its number of atoms; 0 where the problem is not in one line.
  std::size_t line = 0;
  std::size_t found = 0;   ///< how many atoms there are instead, or how many frames
  std::size_t wanted = 0;  ///< how many atoms a frame with too few of them should have
  int frame = 0;           ///< the number of a frame that does not exist
};

/// What was read of an XYZ file: with a problem, the frames before it.
struct XyzReading {
  std::vector<XyzFrame> frames = {};                 ///< those asked for, in their order
  std::optional<XyzProblem> problem = std::nullopt;  ///< nothing if all of them were read
};

/// Returns the number of atoms that the first line of a text states, or nothing if it does not
/// state one of 1 or more. Looks at that line alone.
KELP_QUILL_LOSSLESS_EXPORT std::optional<std::size_t> find_xyz_count(std::string_view text);

/// Reads every frame of a trajectory, at least one. Linear in the length of the text.
KELP_QUILL_LOSSLESS_EXPORT XyzReading read_xyz_frames(std::string_view text);

/// Reads one frame of a trajectory: `number` counts from 1, or from the end if it is negative, so
/// that -1 is the last one; 0 names none. Of the other frames, only the number of atoms is read; if
/// `number` is positive, nothing after the frame is read.
KELP_QUILL_LOSSLESS_EXPORT XyzReading read_xyz_frame(std::string_view text, int number);

/// Reads the frame of a file that has only one.
KELP_QUILL_LOSSLESS_EXPORT XyzReading read_only_xyz_frame(std::string_view text);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_XYZ_FRAMES_HPP
