#include <string_view>

#include "editing/phrases.hpp"
#include "quill-inp/summary/input_difference.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

using Kind = InputDifference::Kind;

/// The text before the values of a difference. Whole lines need none.
std::string subject_of(const InputDifference& difference) {
  const std::string number = difference.number ? std::to_string(*difference.number) : "";
  switch (difference.kind) {
    case Kind::Command:
    case Kind::PostLine:
      return {};
    case Kind::Parameter:
      return "#" + difference.name + ": ";
    case Kind::ParameterOrder:
      return "#" + difference.name + ": the order of the parameters";
    case Kind::CommandOrder:
      return "the order of the commands";
    case Kind::Charge:
      return "charge: ";
    case Kind::Multiplicity:
      return "multiplicity: ";
    case Kind::Geometry:
      return "coordinates: ";
    case Kind::Atom:
    case Kind::Element:
      return "atom " + number + ": ";
    case Kind::Position:
      return "atom " + number + " moved by ";
    case Kind::Path:
      return "path " + number + ": ";
  }
  return {};
}

std::string line_of(const InputDifference& difference) {
  const std::optional<std::string>& before = difference.before;
  const std::optional<std::string>& after = difference.after;
  const bool is_on_one_side = before.has_value() != after.has_value();
  std::string text = !is_on_one_side ? "! " : before ? "- " : "+ ";
  text += subject_of(difference);
  if (difference.distance) text += lossless::rounded_text(*difference.distance);
  if (before) text += *before;
  if (before && after) text += " -> ";
  if (after) text += *after;
  return shown_on_one_line(text) + "\n";
}

}  // namespace

std::string difference_text(const std::string& before, const std::string& after,
                            const InputDifferences& differences) {
  if (differences.count == 0) return {};
  std::string text =
      "--- " + shown_on_one_line(before) + "\n+++ " + shown_on_one_line(after) + "\n";
  for (const InputDifference& difference : differences.first) text += line_of(difference);
  if (const std::size_t left = differences.count - differences.first.size(); left > 0)
    text += "... and " + counted(left, "more difference") + "\n";
  return text;
}

}  // namespace kelp::input::quill::tool
