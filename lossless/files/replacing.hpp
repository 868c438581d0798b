#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_REPLACING_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_REPLACING_HPP

#include <string_view>
#include <vector>

#include "files/opened_file.hpp"

namespace kelp::input::quill::lossless {

/// Replaces the text of a file as FileToReplace::replace() says. Throws FileError on any failure.
std::vector<LostAttribute> replace_content(OpenedFile& origin, std::string_view new_text,
                                           const ReplaceOptions& options);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_REPLACING_HPP
