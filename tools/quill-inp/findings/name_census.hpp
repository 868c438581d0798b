#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_NAME_CENSUS_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_NAME_CENSUS_HPP

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns the names of commands, in canonical form, that at least two of these files use: names
/// that are meant as they are spelled. Only the headers of regular files are read; files that
/// cannot be read have no names here.
std::vector<std::string> names_in_several_files(const std::vector<std::string>& files);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_NAME_CENSUS_HPP
