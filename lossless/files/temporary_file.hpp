#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_TEMPORARY_FILE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_TEMPORARY_FILE_HPP

#include <sys/stat.h>

#include <optional>
#include <string>

#include "files/file_descriptor.hpp"
#include "files/unfinished_name.hpp"

namespace kelp::input::quill::lossless {

/// A new file in a folder, which only its owner can open unless other rights are asked for. Unless
/// it was given its final name, it is removed when the object is destroyed, so on every error.
class TemporaryFile {
 public:
  /// Creates the file in the open folder, with these access rights. Throws FileError when that
  /// fails.
  TemporaryFile(int folder, UnfinishedFiles* observer, mode_t mode = S_IRUSR | S_IWUSR);

  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& name() const { return name_->text(); }
  FileDescriptor& file() { return file_; }

  /// Gives the file its final name, in place of the file that has it. Throws FileError on failure.
  void take_place_of(const std::string& name);

  /// Gives the file its final name unless there is a file of that name already; returns whether it
  /// did. Throws FileError on failure.
  bool take_free_name(const std::string& name);

 private:
  int folder_;
  UnfinishedFiles* observer_;
  FileDescriptor file_;
  std::optional<UnfinishedName> name_ = std::nullopt;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_TEMPORARY_FILE_HPP
