#include "edit_support/line_account.hpp"

namespace kelp::input::quill::edit_support {

namespace {

std::string numbered(std::string_view noun, std::size_t index) {
  return std::string(noun) + ' ' + std::to_string(index + 1);
}

}  // namespace

std::string_view describe(PostCommandKind kind) {
  switch (kind) {
    case PostCommandKind::AtomConstraint:
      return "atom constraint";
    case PostCommandKind::BondConstraint:
      return "bond constraint";
    case PostCommandKind::AngleConstraint:
      return "angle constraint";
    case PostCommandKind::DihedralConstraint:
      return "dihedral constraint";
    case PostCommandKind::Scan:
      return "scan";
    case PostCommandKind::PostFile:
      return "post file";
    case PostCommandKind::Raw:
      return "raw text";
  }
  return "post-processing line of unknown kind";
}

std::string describe(const AccountedLine& line, const QuillInput& input) {
  switch (line.role) {
    case LineRole::Blank:
      return "blank";
    case LineRole::Command:
      return numbered("command", line.index.value());
    case LineRole::ChargeAndMultiplicity:
      return "charge and multiplicity";
    case LineRole::Atom:
      return numbered("atom", line.index.value());
    case LineRole::XyzReference:
      return line.index ? numbered("XYZ reference", *line.index) : "XYZ reference without a path";
    case LineRole::Trajectory:
      return line.index ? "trajectory reference" : "trajectory reference without a path";
    case LineRole::PostCommand:
      return std::string(describe(input.post_commands.at(line.index.value()).kind));
    case LineRole::Dropped:
      return "dropped";
  }
  return {};
}

}  // namespace kelp::input::quill::edit_support
