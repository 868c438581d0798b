#include "quill-inp/summary/input_difference.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string_view>
#include <utility>

#include "editing/phrases.hpp"
#include "kelp/input/quill/writer.hpp"
#include "model/parameter_name.hpp"
#include "quill-inp/formats/document_names.hpp"
#include "quill-inp/text/line_matching.hpp"

namespace kelp::input::quill::tool {

namespace {

using Kind = InputDifference::Kind;

/// The entries of the second list that match those of the first one, and the entries without a
/// match.
struct Matches {
  std::vector<std::optional<std::size_t>> of_before = {};
  std::vector<std::size_t> only_after = {};

  /// Whether the entries that both lists have are in another order.
  bool are_out_of_order() const {
    std::size_t least = 0;
    for (const std::optional<std::size_t>& after : of_before) {
      if (!after) continue;
      if (*after < least) return true;
      least = *after;
    }
    return false;
  }
};

std::string compared_name(const HeaderCommand& command) {
  return normalize_command_name(command.name);
}

std::string compared_name(const CommandParameter& parameter) {
  return normalize_parameter_name(parameter.name);
}

/// Matches entries by their names, the second of a name with the second.
template <typename T>
Matches match_names(const std::vector<T>& before, const std::vector<T>& after) {
  std::map<std::string, std::vector<std::size_t>> places;
  for (std::size_t i = after.size(); i-- > 0;) places[compared_name(after[i])].push_back(i);
  Matches matches;
  std::vector<bool> is_matched(after.size());
  for (const T& entry : before) {
    std::vector<std::size_t>& left = places[compared_name(entry)];
    matches.of_before.push_back(left.empty() ? std::nullopt : std::optional(left.back()));
    if (left.empty()) continue;
    is_matched[left.back()] = true;
    left.pop_back();
  }
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (!is_matched[i]) matches.only_after.push_back(i);
  }
  return matches;
}

std::string text_of(const CommandParameter& parameter) {
  return parameter.value ? parameter.name + "=" + *parameter.value : parameter.name;
}

std::string text_of(const AtomRecord& atom) {
  std::string text = atom.symbol;
  for (const double coordinate : {atom.x, atom.y, atom.z})
    text += " " + lossless::shortest_text(coordinate);
  return text;
}

/// Returns a post-processing line with all digits of its value.
std::string text_of(const PostCommand& line) {
  if (line.kind != PostCommandKind::Scan || !line.scan_value) return to_string(line);
  return "S " + lossless::joined(line.atom_indices) + " " +
         lossless::shortest_text(*line.scan_value) + " " +
         std::to_string(line.scan_steps.value_or(0));
}

bool is_same(double left, double right) {
  return left == right || (std::isnan(left) && std::isnan(right));
}

/// Returns the distance of two coordinates: infinite if only one of them is a finite number.
double distance(double left, double right) {
  if (is_same(left, right)) return 0.0;
  const double difference = left - right;
  return std::isnan(difference) ? std::numeric_limits<double>::infinity() : difference;
}

double distance(const AtomRecord& left, const AtomRecord& right) {
  const double x = distance(left.x, right.x);
  const double y = distance(left.y, right.y);
  const double z = distance(left.z, right.z);
  // The function for three arguments gives a NaN for an infinite one.
  return std::hypot(std::hypot(x, y), z);
}

/// Compares one part after another and notes what differs.
class Comparer {
 public:
  InputDifferences take() { return std::move(differences_); }

  void compare_commands(const std::vector<HeaderCommand>& before,
                        const std::vector<HeaderCommand>& after) {
    const Matches matches = match_names(before, after);
    for (std::size_t i = 0; i < before.size(); ++i) {
      if (matches.of_before[i]) {
        compare_command(before[i], after[*matches.of_before[i]]);
      } else {
        note({Kind::Command, {}, {}, to_string(before[i])});
      }
    }
    for (const std::size_t i : matches.only_after)
      note({Kind::Command, {}, {}, {}, to_string(after[i])});
    if (matches.are_out_of_order()) note({Kind::CommandOrder});
  }

  void compare_geometry(const GeometryBlock& before, const GeometryBlock& after) {
    compare_numbers(Kind::Charge, before.charge, after.charge);
    compare_numbers(Kind::Multiplicity, before.multiplicity, after.multiplicity);
    if (before.kind != after.kind)
      note({Kind::Geometry,
            {},
            {},
            std::string(name_of(before.kind)),
            std::string(name_of(after.kind))});
    compare_atoms(before.atoms, after.atoms);
    compare_paths(before.xyz_files, after.xyz_files);
  }

  void compare_post_lines(const std::vector<PostCommand>& before,
                          const std::vector<PostCommand>& after) {
    const std::vector<std::string> old_texts = texts_of(before);
    const std::vector<std::string> new_texts = texts_of(after);
    std::size_t old_next = 0;
    std::size_t new_next = 0;
    for (const MatchingRun& run : match_lines(views_of(old_texts), views_of(new_texts))) {
      for (; old_next < run.old_begin; ++old_next)
        note({Kind::PostLine, {}, {}, old_texts[old_next]});
      for (; new_next < run.new_begin; ++new_next)
        note({Kind::PostLine, {}, {}, {}, new_texts[new_next]});
      old_next += run.length;
      new_next += run.length;
    }
  }

 private:
  void note(InputDifference difference) {
    ++differences_.count;
    if (differences_.first.size() < most_differences)
      differences_.first.push_back(std::move(difference));
  }

  void compare_command(const HeaderCommand& before, const HeaderCommand& after) {
    if (before.kind != after.kind || before.value != after.value) {
      note({Kind::Command, {}, {}, to_string(before), to_string(after)});
      return;
    }
    const Matches matches = match_names(before.parameters, after.parameters);
    for (std::size_t i = 0; i < before.parameters.size(); ++i) {
      const CommandParameter& old = before.parameters[i];
      const std::optional<std::size_t> match = matches.of_before[i];
      if (!match) {
        note({Kind::Parameter, before.name, {}, text_of(old)});
      } else if (old.value != after.parameters[*match].value) {
        note({Kind::Parameter, before.name, {}, text_of(old), text_of(after.parameters[*match])});
      }
    }
    for (const std::size_t i : matches.only_after)
      note({Kind::Parameter, before.name, {}, {}, text_of(after.parameters[i])});
    if (matches.are_out_of_order()) note({Kind::ParameterOrder, before.name});
  }

  void compare_numbers(Kind kind, std::int32_t before, std::int32_t after) {
    if (before != after) note({kind, {}, {}, std::to_string(before), std::to_string(after)});
  }

  void compare_atoms(const std::vector<AtomRecord>& before, const std::vector<AtomRecord>& after) {
    const std::size_t common = std::min(before.size(), after.size());
    for (std::size_t i = 0; i < common; ++i) compare_atom(i + 1, before[i], after[i]);
    for (std::size_t i = common; i < before.size(); ++i)
      note({Kind::Atom, {}, i + 1, text_of(before[i])});
    for (std::size_t i = common; i < after.size(); ++i)
      note({Kind::Atom, {}, i + 1, {}, text_of(after[i])});
  }

  void compare_atom(std::size_t number, const AtomRecord& before, const AtomRecord& after) {
    if (before.symbol != after.symbol)
      note({Kind::Element, {}, number, before.symbol, after.symbol});
    if (!is_same(before.x, after.x) || !is_same(before.y, after.y) || !is_same(before.z, after.z))
      note({Kind::Position, {}, number, {}, {}, distance(before, after)});
  }

  void compare_paths(const std::vector<std::string>& before,
                     const std::vector<std::string>& after) {
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
      const auto old = i < before.size() ? std::optional(before[i]) : std::nullopt;
      const auto now = i < after.size() ? std::optional(after[i]) : std::nullopt;
      if (old != now) note({Kind::Path, {}, i + 1, old, now});
    }
  }

  static std::vector<std::string> texts_of(const std::vector<PostCommand>& lines) {
    std::vector<std::string> texts;
    texts.reserve(lines.size());
    for (const PostCommand& line : lines) texts.push_back(text_of(line));
    return texts;
  }

  static std::vector<std::string_view> views_of(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
  }

  InputDifferences differences_ = {};
};

}  // namespace

InputDifferences find_differences(const QuillInput& before, const QuillInput& after) {
  Comparer comparer;
  comparer.compare_commands(before.commands, after.commands);
  comparer.compare_geometry(before.geometry, after.geometry);
  comparer.compare_post_lines(before.post_commands, after.post_commands);
  return comparer.take();
}

}  // namespace kelp::input::quill::tool
