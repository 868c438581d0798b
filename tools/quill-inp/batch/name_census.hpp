#ifndef KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns the names of commands, in canonical form and sorted, that at least two of these files
/// use: names that are meant as they are spelled. Only the headers of regular files are read, on so
/// many threads; files that cannot be read, and standard input, have no names here.
std::vector<std::string> names_in_several_files(const std::vector<std::string>& files,
                                                unsigned threads);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP
