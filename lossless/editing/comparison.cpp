#include "kelp/input/quill/lossless/comparison.hpp"

#include <algorithm>
#include <utility>

#include "editing/number_distance.hpp"
#include "kelp/input/quill/lossless/equality.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// Compares one part after another and notes what differs.
class Comparer {
 public:
  explicit Comparer(double max_change) : max_change_(max_change) {}

  void compare_commands(const QuillInput& wanted, const QuillInput& found) {
    compare_each(LineRole::Command, Member::CommandCount, wanted.commands, found.commands,
                 &Comparer::compare_command);
  }

  void compare_geometry(const GeometryBlock& wanted, const GeometryBlock& found) {
    const Part charge{LineRole::ChargeAndMultiplicity};
    compare_member(charge, Member::ChargeLine, wanted.has_charge_and_multiplicity,
                   found.has_charge_and_multiplicity);
    compare_member(charge, Member::Charge, wanted.charge, found.charge);
    compare_member(charge, Member::Multiplicity, wanted.multiplicity, found.multiplicity);
    compare_member(Part{}, Member::GeometryKind, wanted.kind, found.kind);
    compare_each(LineRole::Atom, Member::AtomCount, wanted.atoms, found.atoms,
                 &Comparer::compare_atom);
    const bool is_trajectory = wanted.kind == GeometryKind::XyzTrajectory;
    compare_each(is_trajectory ? LineRole::Trajectory : LineRole::XyzReference, Member::PathCount,
                 wanted.xyz_files, found.xyz_files, &Comparer::compare_path);
  }

  void compare_post_commands(const QuillInput& wanted, const QuillInput& found) {
    compare_each(LineRole::PostCommand, Member::PostLineCount, wanted.post_commands,
                 found.post_commands, &Comparer::compare_post_command);
  }

  Comparison take() { return std::move(comparison_); }

 private:
  template <typename T>
  void compare_each(LineRole role, Member count, const std::vector<T>& wanted,
                    const std::vector<T>& found,
                    void (Comparer::*compare_one)(Part, const T&, const T&)) {
    const std::size_t common = std::min(wanted.size(), found.size());
    for (std::size_t i = 0; i < common; ++i)
      (this->*compare_one)(Part{role, i}, wanted[i], found[i]);
    compare_member(Part{}, count, wanted.size(), found.size());
  }

  void compare_command(Part part, const HeaderCommand& wanted, const HeaderCommand& found) {
    compare_member(part, Member::Name, wanted.name, found.name);
    compare_member(part, Member::Kind, wanted.kind, found.kind);
    compare_member(part, Member::Value, wanted.value, found.value);
    const std::size_t common = std::min(wanted.parameters.size(), found.parameters.size());
    for (std::size_t i = 0; i < common; ++i) {
      const CommandParameter& one = wanted.parameters[i];
      const CommandParameter& other = found.parameters[i];
      compare_member(part, Member::Name, one.name, other.name, i);
      compare_member(part, Member::Value, one.value, other.value, i);
    }
    compare_member(part, Member::ParameterCount, wanted.parameters.size(), found.parameters.size());
  }

  void compare_atom(Part part, const AtomRecord& wanted, const AtomRecord& found) {
    compare_member(part, Member::Symbol, wanted.symbol, found.symbol);
    compare_number(part, Member::X, wanted.x, found.x);
    compare_number(part, Member::Y, wanted.y, found.y);
    compare_number(part, Member::Z, wanted.z, found.z);
  }

  void compare_path(Part part, const std::string& wanted, const std::string& found) {
    compare_member(part, Member::Path, wanted, found);
  }

  void compare_post_command(Part part, const PostCommand& wanted, const PostCommand& found) {
    compare_member(part, Member::Kind, wanted.kind, found.kind);
    compare_member(part, Member::AtomNumbers, wanted.atom_indices, found.atom_indices);
    if (wanted.scan_value && found.scan_value) {
      compare_number(part, Member::ScanValue, *wanted.scan_value, *found.scan_value);
    } else {
      compare_member(part, Member::ScanValue, wanted.scan_value, found.scan_value);
    }
    compare_member(part, Member::ScanSteps, wanted.scan_steps, found.scan_steps);
    compare_member(part, Member::Path, wanted.post_file, found.post_file);
    if (wanted.kind == PostCommandKind::Raw && found.kind == PostCommandKind::Raw)
      compare_member(part, Member::RawText, wanted.raw_text, found.raw_text);
  }

  void compare_number(Part part, Member member, double wanted, double found) {
    if (is_equal_number(wanted, found)) return;
    const double change = distance(wanted, found);
    NumberChanges& changes = comparison_.number_changes;
    ++changes.count;
    changes.largest = std::max(changes.largest, change);
    if (max_change_ > 0.0 && change <= max_change_) return;
    comparison_.differences.push_back({part, member, wanted, found});
  }

  template <typename T>
  void compare_member(Part part, Member member, const T& wanted, const T& found,
                      std::optional<std::size_t> parameter = std::nullopt) {
    if (wanted != found)
      comparison_.differences.push_back({part, member, value(wanted), value(found), parameter});
  }

  template <typename T>
  static Value value(const T& known) {
    return known;
  }

  template <typename T>
  static Value value(const std::optional<T>& known) {
    return known ? Value(*known) : Value();
  }

  double max_change_;
  Comparison comparison_;
};

}  // namespace

Comparison compare(const QuillInput& wanted, const QuillInput& found, double max_change) {
  Comparer comparer(max_change);
  comparer.compare_commands(wanted, found);
  comparer.compare_geometry(wanted.geometry, found.geometry);
  comparer.compare_post_commands(wanted, found);
  return comparer.take();
}

}  // namespace kelp::input::quill::lossless
