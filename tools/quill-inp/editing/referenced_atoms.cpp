#include "quill-inp/editing/referenced_atoms.hpp"

#include <cstdint>

#include "kelp/input/quill/lossless/xyz_frames.hpp"
#include "quill-inp/process/regular_file.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Longer than any first line of an XYZ file.
constexpr std::uint64_t enough = 255;

}  // namespace

std::optional<std::size_t> count_referenced_atoms(const std::string& folder,
                                                  const std::string& path) {
  const bool is_absolute = !path.empty() && path.front() == '/';
  const auto beginning = read_beginning(is_absolute ? path : folder + "/" + path, enough);
  return beginning ? lossless::find_xyz_count(beginning->text) : std::nullopt;
}

}  // namespace kelp::input::quill::tool
