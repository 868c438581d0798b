#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_NAMES_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_NAMES_HPP

#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill::tool {

/// The name of a kind in the JSON form of documents. Reading and writing share the rows.
template <typename Kind>
struct KindName {
  Kind kind;
  std::string_view name;
};

inline constexpr KindName<HeaderCommandKind> command_kind_names[] = {
    {HeaderCommandKind::Flag, "flag"},
    {HeaderCommandKind::Assignment, "assignment"},
    {HeaderCommandKind::ParameterList, "parameter_list"},
};

inline constexpr KindName<GeometryKind> geometry_kind_names[] = {
    {GeometryKind::None, "none"},
    {GeometryKind::Atoms, "atoms"},
    {GeometryKind::XyzFile, "xyz_file"},
    {GeometryKind::XyzTrajectory, "xyz_trajectory"},
};

/// Returns the name of a kind, or the empty text for a value outside the enumeration. The rows of
/// the kinds of post-processing lines are post_line_shapes.
template <typename Rows, typename Kind>
constexpr std::string_view find_name(const Rows& rows, Kind kind) {
  for (const auto& row : rows) {
    if (row.kind == kind) return row.name;
  }
  return {};
}

constexpr std::string_view name_of(GeometryKind kind) {
  return find_name(geometry_kind_names, kind);
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_NAMES_HPP
