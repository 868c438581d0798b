#include "language_server/facts/folder_entries.hpp"

#include <cstddef>
#include <system_error>

namespace kelp::input::quill::language_server {

namespace fs = std::filesystem;

void for_each_entry(const fs::path& folder,
                    const std::function<void(const fs::directory_entry&)>& use) {
  constexpr std::size_t most = 10000;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (std::size_t seen = 0; !error && seen < most && entry != fs::directory_iterator(); ++seen) {
    use(*entry);
    entry.increment(error);
  }
}

}  // namespace kelp::input::quill::language_server
