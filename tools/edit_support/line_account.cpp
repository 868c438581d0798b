#include "edit_support/line_account.hpp"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <system_error>

#include "edit_support/physical_lines.hpp"

namespace kelp::input::quill::edit_support {

namespace {

/// Returns N when the warning is "Line N: " and then this message, and nothing otherwise.
std::optional<std::size_t> line_warned_of(std::string_view warning, std::string_view message) {
  constexpr std::string_view prefix = "Line ";
  constexpr std::string_view separator = ": ";
  if (warning.substr(0, prefix.size()) != prefix) return std::nullopt;
  warning.remove_prefix(prefix.size());
  std::size_t number = 0;
  const auto [end, error] =
      std::from_chars(warning.data(), warning.data() + warning.size(), number);
  if (error != std::errc()) return std::nullopt;
  warning.remove_prefix(static_cast<std::size_t>(end - warning.data()));
  const bool is_meant = warning.substr(0, separator.size()) == separator &&
                        warning.substr(separator.size()) == message;
  return is_meant ? std::optional<std::size_t>(number) : std::nullopt;
}

/// The numbers of the lines with this warning, ascending as the warnings are.
std::vector<std::size_t> lines_warned_of(const ParseResult& result, std::string_view message) {
  std::vector<std::size_t> numbers;
  for (const std::string& warning : result.warnings) {
    if (const auto number = line_warned_of(warning, message)) numbers.push_back(*number);
  }
  return numbers;
}

bool contains(const std::vector<std::size_t>& numbers, std::size_t number) {
  return std::binary_search(numbers.begin(), numbers.end(), number);
}

/// Hands out the roles of the lines that are not blank, one after another.
class RoleCounter {
 public:
  explicit RoleCounter(const ParseResult& result)
      : input_(result.input),
        without_path_(lines_warned_of(result, "XYZ reference has no file path")),
        dropped_(lines_warned_of(result, "ignored unrecognized QUILL post-processing line")) {}

  void assign_role(AccountedLine& line) {
    if (!assign_header_role(line) && !assign_coordinate_role(line)) assign_post_role(line);
  }

  bool has_assigned_all() const {
    const GeometryBlock& geometry = input_.geometry;
    return commands_ == input_.commands.size() &&
           has_seen_charge_ == geometry.has_charge_and_multiplicity &&
           has_seen_trajectory_ == (geometry.kind == GeometryKind::XyzTrajectory) &&
           atoms_ == geometry.atoms.size() && files_ == geometry.xyz_files.size() &&
           idle_references_ == without_path_.size() &&
           post_commands_ == input_.post_commands.size() && dropped_lines_ == dropped_.size();
  }

 private:
  bool assign_header_role(AccountedLine& line) {
    return assign_next(line, LineRole::Command, commands_, input_.commands.size());
  }

  bool assign_coordinate_role(AccountedLine& line) {
    const GeometryBlock& geometry = input_.geometry;
    if (geometry.has_charge_and_multiplicity && !has_seen_charge_) {
      has_seen_charge_ = true;
      line.role = LineRole::ChargeAndMultiplicity;
      return true;
    }
    switch (geometry.kind) {
      case GeometryKind::None:
        return false;
      case GeometryKind::Atoms:
        return assign_next(line, LineRole::Atom, atoms_, geometry.atoms.size());
      case GeometryKind::XyzFile:
        return assign_reference(line);
      case GeometryKind::XyzTrajectory:
        return assign_trajectory(line);
    }
    return false;
  }

  bool assign_reference(AccountedLine& line) {
    if (contains(without_path_, line.number)) {
      ++idle_references_;
      line.role = LineRole::XyzReference;
      return true;
    }
    return assign_next(line, LineRole::XyzReference, files_, input_.geometry.xyz_files.size());
  }

  bool assign_trajectory(AccountedLine& line) {
    if (has_seen_trajectory_) return false;
    has_seen_trajectory_ = true;
    line.role = LineRole::Trajectory;
    assign_next(line, LineRole::Trajectory, files_, input_.geometry.xyz_files.size());
    return true;
  }

  void assign_post_role(AccountedLine& line) {
    if (contains(dropped_, line.number)) {
      ++dropped_lines_;
      line.role = LineRole::Dropped;
      return;
    }
    if (!assign_next(line, LineRole::PostCommand, post_commands_, input_.post_commands.size()))
      throw std::invalid_argument("the result has fewer parts than the text has lines");
  }

  static bool assign_next(AccountedLine& line, LineRole role, std::size_t& count,
                          std::size_t total) {
    if (count == total) return false;
    line.role = role;
    line.index = count++;
    return true;
  }

  const QuillInput& input_;
  std::vector<std::size_t> without_path_;
  std::vector<std::size_t> dropped_;
  std::size_t commands_ = 0;
  bool has_seen_charge_ = false;
  std::size_t atoms_ = 0;
  std::size_t files_ = 0;
  std::size_t idle_references_ = 0;
  bool has_seen_trajectory_ = false;
  std::size_t post_commands_ = 0;
  std::size_t dropped_lines_ = 0;
};

}  // namespace

std::vector<AccountedLine> account_for_lines(std::string_view text, const ParseResult& result) {
  std::vector<AccountedLine> account;
  RoleCounter roles(result);
  for (const PhysicalLine& physical : find_physical_lines(text)) {
    AccountedLine line;
    line.number = account.size() + 1;
    line.offset = physical.offset;
    line.length = physical.length;
    line.terminator_length = physical.terminator_length;
    if (!physical.is_blank) roles.assign_role(line);
    account.push_back(line);
  }
  if (!roles.has_assigned_all())
    throw std::invalid_argument("the result has more parts than the text has lines");
  return account;
}

std::optional<std::size_t> find_line(const std::vector<AccountedLine>& account, LineRole role,
                                     std::optional<std::size_t> index) {
  const auto line = std::find_if(account.begin(), account.end(), [&](const AccountedLine& entry) {
    return entry.role == role && entry.index == index;
  });
  if (line == account.end()) return std::nullopt;
  return static_cast<std::size_t>(line - account.begin());
}

}  // namespace kelp::input::quill::edit_support
