#include "edit_support/document_difference.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "edit_support/number_change.hpp"
#include "edit_support/part_words.hpp"

namespace kelp::input::quill::edit_support {

namespace {

/// The part of a document that is compared at the moment. Its words are wanted only when something
/// differs, which is rare among a million atoms.
struct Part {
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;
  std::string_view noun = {};

  std::string words() const {
    std::string out(noun);
    if (index) {
      out += ' ';
      out += std::to_string(*index + 1);
    }
    return out;
  }
};

class Comparer {
 public:
  explicit Comparer(double max_change) : max_change_(max_change) {}

  void compare_commands(const QuillInput& meant, const QuillInput& found) {
    compare_each(LineRole::Command, "command", "header commands", meant.commands, found.commands,
                 &Comparer::compare_command);
  }

  void compare_geometry(const GeometryBlock& meant, const GeometryBlock& found) {
    const Part charge{LineRole::ChargeAndMultiplicity};
    compare_charge_line(meant, found);
    compare_value(charge, "the charge", meant.charge, found.charge);
    compare_value(charge, "the multiplicity", meant.multiplicity, found.multiplicity);
    compare_value(Part{}, "the coordinate section", meant.kind, found.kind);
    compare_each(LineRole::Atom, "atom", "atoms", meant.atoms, found.atoms,
                 &Comparer::compare_atom);
    const bool is_trajectory = meant.kind == GeometryKind::XyzTrajectory;
    compare_each(is_trajectory ? LineRole::Trajectory : LineRole::XyzReference,
                 is_trajectory ? "trajectory reference" : "XYZ reference", "paths", meant.xyz_files,
                 found.xyz_files, &Comparer::compare_path);
  }

  void compare_post_commands(const QuillInput& meant, const QuillInput& found) {
    compare_each(LineRole::PostCommand, "post-processing line", "post-processing lines",
                 meant.post_commands, found.post_commands, &Comparer::compare_post_command);
  }

  DocumentComparison take() { return std::move(comparison_); }

 private:
  template <typename T>
  void compare_each(LineRole role, std::string_view noun, std::string_view nouns,
                    const std::vector<T>& meant, const std::vector<T>& found,
                    void (Comparer::*compare_one)(const Part&, const T&, const T&)) {
    const std::size_t common = std::min(meant.size(), found.size());
    for (std::size_t i = 0; i < common; ++i)
      (this->*compare_one)(Part{role, i, noun}, meant[i], found[i]);
    compare_value(Part{}, "the number of " + std::string(nouns), meant.size(), found.size());
  }

  void compare_command(const Part& part, const HeaderCommand& meant, const HeaderCommand& found) {
    if (is_same(meant, found)) return;
    compare_value(part, "the name of " + part.words(), meant.name, found.name);
    compare_value(part, part.words(), meant.kind, found.kind);
    compare_value(part, "the value of " + part.words(), meant.value, found.value);
    compare_parameters(part, meant.parameters, found.parameters);
  }

  void compare_parameters(const Part& part, const std::vector<CommandParameter>& meant,
                          const std::vector<CommandParameter>& found) {
    const std::size_t common = std::min(meant.size(), found.size());
    for (std::size_t i = 0; i < common; ++i) {
      const std::string parameter = "parameter " + std::to_string(i + 1) + " of " + part.words();
      compare_value(part, "the name of " + parameter, meant[i].name, found[i].name);
      compare_value(part, "the value of " + parameter, meant[i].value, found[i].value);
    }
    compare_value(part, "the number of parameters of " + part.words(), meant.size(), found.size());
  }

  void compare_charge_line(const GeometryBlock& meant, const GeometryBlock& found) {
    if (meant.has_charge_and_multiplicity == found.has_charge_and_multiplicity) return;
    add(Part{LineRole::ChargeAndMultiplicity},
        found.has_charge_and_multiplicity
            ? "the charge and multiplicity are present instead of absent"
            : "the charge and multiplicity are absent instead of present");
  }

  void compare_atom(const Part& part, const AtomRecord& meant, const AtomRecord& found) {
    if (is_same(meant, found)) return;
    compare_value(part, "the symbol of " + part.words(), meant.symbol, found.symbol);
    compare_number(part, "x of ", meant.x, found.x);
    compare_number(part, "y of ", meant.y, found.y);
    compare_number(part, "z of ", meant.z, found.z);
  }

  void compare_path(const Part& part, const std::string& meant, const std::string& found) {
    compare_value(part, "the path of " + part.words(), meant, found);
  }

  void compare_post_command(const Part& part, const PostCommand& meant, const PostCommand& found) {
    if (is_same(meant, found)) return;
    compare_value(part, part.words(), meant.kind, found.kind);
    compare_value(part, "the list of atom numbers of " + part.words(), meant.atom_indices,
                  found.atom_indices);
    compare_scan_value(part, meant.scan_value, found.scan_value);
    compare_value(part, "the number of steps of " + part.words(), meant.scan_steps,
                  found.scan_steps);
    compare_value(part, "the path of " + part.words(), meant.post_file, found.post_file);
    if (meant.kind == PostCommandKind::Raw && found.kind == PostCommandKind::Raw)
      compare_value(part, "the text of " + part.words(), meant.raw_text, found.raw_text);
  }

  void compare_scan_value(const Part& part, const std::optional<double>& meant,
                          const std::optional<double>& found) {
    constexpr std::string_view subject = "the scan value of ";
    if (meant && found) {
      compare_number(part, subject, *meant, *found);
    } else {
      compare_value(part, std::string(subject) + part.words(), meant, found);
    }
  }

  void compare_number(const Part& part, std::string_view subject, double meant, double found) {
    if (is_same_number(meant, found)) return;
    const double change = distance(meant, found);
    NumberChanges& changes = comparison_.number_changes;
    ++changes.count;
    changes.largest = std::max(changes.largest, change);
    if (max_change_ > 0.0 && change <= max_change_) return;
    add(part, std::string(subject) + part.words() + " is " + words(found) + " instead of " +
                  words(meant));
  }

  template <typename T>
  void compare_value(const Part& part, const std::string& subject, const T& meant, const T& found) {
    if (meant != found) add(part, subject + " is " + words(found) + " instead of " + words(meant));
  }

  void add(const Part& part, std::string words) {
    comparison_.differences.push_back({part.role, part.index, std::move(words)});
  }

  double max_change_;
  DocumentComparison comparison_;
};

}  // namespace

DocumentComparison compare(const QuillInput& meant, const QuillInput& found, double max_change) {
  Comparer comparer(max_change);
  comparer.compare_commands(meant, found);
  comparer.compare_geometry(meant.geometry, found.geometry);
  comparer.compare_post_commands(meant, found);
  return comparer.take();
}

}  // namespace kelp::input::quill::edit_support
