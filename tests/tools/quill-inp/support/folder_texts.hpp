#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FOLDER_TEXTS_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FOLDER_TEXTS_HPP

#include <map>
#include <string>

namespace kelp::input::quill::tool {

/// What a folder holds: the texts of the files by their names.
using FolderTexts = std::map<std::string, std::string>;

FolderTexts texts_in(const std::string& folder);

/// Expects of each file that it is as before or as after, and that there are no others.
void expect_old_or_new(const FolderTexts& files, const FolderTexts& before,
                       const FolderTexts& after);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FOLDER_TEXTS_HPP
