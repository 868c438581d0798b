#ifndef KELP_INPUT_QUILL_LOSSLESS_COMPARISON_HPP
#define KELP_INPUT_QUILL_LOSSLESS_COMPARISON_HPP

/// @file
/// Compares the document that is wanted with the one that a text is read as.
///
///     const QuillInput wanted = parse_string("#opt\n#model = m2\n\n1 2\n").input;
///     const QuillInput found = parse_string("#opt\n#model = m1\n\n0 2\n").input;
///     for (const Difference& difference : compare(wanted, found).differences)
///       std::cerr << words(difference) << '\n';

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// A part of a document that has its own line, as in a LineRecord.
struct Part {
  LineRole role = LineRole::Blank;                  ///< of the line
  std::optional<std::size_t> index = std::nullopt;  ///< in the list that the role names, from 0

  /// Whether both are the same part.
  bool operator==(const Part& other) const { return role == other.role && index == other.index; }
};

/// A member of a document that can differ between two documents.
enum class Member {
  CommandCount,
  Name,   ///< of a command or parameter
  Kind,   ///< of a command or post-processing line
  Value,  ///< of a command or parameter
  ParameterCount,
  ChargeLine,  ///< whether there is one
  Charge,
  Multiplicity,
  GeometryKind,
  AtomCount,
  Symbol,
  X,
  Y,
  Z,
  PathCount,
  Path,  ///< of a reference or post file
  PostLineCount,
  AtomNumbers,
  ScanValue,
  ScanSteps,
  RawText,
};

/// What a document has for a member: nothing, or a value of the member's type.
using Value =
    std::variant<std::monostate, bool, std::int32_t, std::size_t, double, std::string,
                 std::vector<std::int32_t>, HeaderCommandKind, GeometryKind, PostCommandKind>;

/// One member that differs. `part` is the part of the document that it belongs to; a role of Blank
/// means the document as a whole (its kind of geometry, the length of a list). If the member
/// belongs to a parameter of a command, `parameter` is the index of that parameter.
struct Difference {
  Part part = {};                        ///< what the member belongs to
  Member member = Member::CommandCount;  ///< what differs
  Value wanted = {};                     ///< in the document that is wanted
  Value found = {};                      ///< in the other one
  /// The index of the parameter, from 0.
  std::optional<std::size_t> parameter = std::nullopt;
};

/// How many coordinates and scan values changed, whether that was accepted or not, and the largest
/// change. A change is infinite when one of the two numbers is infinite or not a number, and zero
/// when a zero changed only its sign.
struct NumberChanges {
  std::size_t count = 0;  ///< of the numbers that changed
  double largest = 0.0;   ///< change, in the unit of the file
};

/// Everything that differs, in the order of the lines, and the numbers that changed.
struct Comparison {
  std::vector<Difference> differences = {};  ///< in the order of the lines
  NumberChanges number_changes = {};         ///< small ones included

  /// Whether the documents are equal, apart from changes of numbers that are small enough.
  bool is_equal() const { return differences.empty(); }
};

/// Compares `found` with `wanted`. A coordinate or scan value may differ by up to `max_change`;
/// when that is 0, every bit counts, except that two NaNs of the same sign are equal. When two
/// lists differ in length, that is one difference, and the entries up to the end of the shorter
/// list are compared.
KELP_QUILL_LOSSLESS_EXPORT Comparison compare(const QuillInput& wanted, const QuillInput& found,
                                              double max_change = 0.0);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_COMPARISON_HPP
