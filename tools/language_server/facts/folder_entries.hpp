#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_FOLDER_ENTRIES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_FOLDER_ENTRIES_HPP

#include <filesystem>
#include <functional>

namespace kelp::input::quill::language_server {

/// Passes on the entries of a folder in any order, 10,000 at most, because a person waits for what
/// is made of them. A folder that cannot be read has none.
void for_each_entry(const std::filesystem::path& folder,
                    const std::function<void(const std::filesystem::directory_entry&)>& use);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_FOLDER_ENTRIES_HPP
