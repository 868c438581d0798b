#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_INPUT_DIFFERENCE_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_INPUT_DIFFERENCE_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_writer.hpp"

// What differs in the meaning of two inputs. Layout, quotes, the letter case of names, and a line
// of charge and multiplicity that says what is assumed without it do not count.

namespace kelp::input::quill::tool {

/// One thing that differs. `name` and `number` say what it is about, as far as its kind has them.
/// `before` and `after` are empty where an input does not have it; both are for an order and a
/// move.
struct InputDifference {
  enum class Kind {
    Command,         // as a line
    Parameter,       // of the command `name`
    ParameterOrder,  // of the command `name`
    CommandOrder,
    Charge,
    Multiplicity,
    Geometry,  // the kind of the coordinates
    Atom,      // number `number`, as a symbol and coordinates
    Element,   // of an atom
    Position,  // of an atom, which is `distance` away from where it was
    Path,      // number `number` of the references
    PostLine,  // as a line
  };

  Kind kind = Kind::Command;
  std::string name = {};                             // of a command
  std::optional<std::size_t> number = std::nullopt;  // counted from 1
  std::optional<std::string> before = std::nullopt;
  std::optional<std::string> after = std::nullopt;
  std::optional<double> distance = std::nullopt;  // in the unit of the file
};

/// The differences of two inputs, in the order of the lines: how many there are, and the first
/// ones.
struct InputDifferences {
  std::size_t count = 0;
  std::vector<InputDifference> first = {};
};

/// The number of differences that are kept. Nobody reads more, and two large inputs can differ
/// everywhere.
inline constexpr std::size_t most_differences = 1000;

/// Compares two inputs. Commands and parameters are matched by their names, the second of a name
/// with the second, atoms and references by their numbers, and post-processing lines by what they
/// say, so that one additional line does not make all lines after it differ.
InputDifferences find_differences(const QuillInput& before, const QuillInput& after);

/// Returns the differences for people, one on a line: "-" for what only the first input has, "+"
/// for what only the second has, and "!" for what is different. The first two lines have the names.
/// Returns the empty text for inputs that say the same.
std::string difference_text(const std::string& before, const std::string& after,
                            const InputDifferences& differences);

/// Writes the same as data: a JSON object on one line.
void write_difference_json(const std::string& before, const std::string& after,
                           const InputDifferences& differences, const JsonWriter::Sink& sink);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_INPUT_DIFFERENCE_HPP
