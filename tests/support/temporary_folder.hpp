#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_TEMPORARY_FOLDER_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_TEMPORARY_FOLDER_HPP

#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace kelp::input::quill {

/// A new empty folder in the system's folder for temporary files. It is removed, with everything in
/// it, when the object is destroyed.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(make_new_folder()) {}

  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// The path of the folder, or that of a file with this name in it, which need not exist.
  std::string path() const { return path_.string(); }
  std::string path(const std::string& name) const { return (path_ / name).string(); }

  /// Writes a file byte for byte, whatever the global locale, and returns its path.
  std::string write(const std::string& name, std::string_view content) const {
    std::ofstream file;
    file.imbue(std::locale::classic());
    file.open(path(name), std::ios_base::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path(name));
    return path(name);
  }

 private:
  static std::filesystem::path make_new_folder() {
    std::random_device random;
    for (;;) {
      // Only one of several processes that try the same name at once is told that it made it.
      auto path = std::filesystem::temp_directory_path() /
                  ("kelp_quill_inp_test." + std::to_string(random()));
      if (std::filesystem::create_directory(path)) return path;
    }
  }

  std::filesystem::path path_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_TEMPORARY_FOLDER_HPP
