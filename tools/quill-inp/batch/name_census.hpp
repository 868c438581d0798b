#ifndef KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns the names of commands, in canonical form and sorted, that at least two of these files
/// use: these are probably spelled as intended. Only the headers of regular files are read, on this
/// number of threads; files that cannot be read, and standard input, add no names.
std::vector<std::string> names_in_several_files(const std::vector<std::string>& files,
                                                unsigned threads);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_NAME_CENSUS_HPP
