#ifndef KELP_INPUT_QUILL_FILES_PLAIN_FILE_HPP
#define KELP_INPUT_QUILL_FILES_PLAIN_FILE_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// An open file of bytes: no buffer, no locale, no other line ends than those in the file. The
/// streams of the standard libraries differ here. Some take a read that fails for the end of the
/// file, or a failed allocation for a failed read, and the bytes of a path mean another thing on
/// each system. Paths are UTF-8 on systems that count in characters, and bytes on all others.
class PlainFile {
 public:
  /// Opens a file that is there. Nothing if that is not possible, and nothing for a path with a NUL
  /// in it, which would name another file.
  static std::optional<PlainFile> for_reading(const std::string& path);

  /// Opens an empty file, a new one or one whose content goes. Nothing if that is not possible.
  static std::optional<PlainFile> for_writing(const std::string& path);

  PlainFile(PlainFile&& other) noexcept;
  PlainFile& operator=(PlainFile&&) = delete;
  ~PlainFile();

  /// The size of a regular file, and 0 for anything else.
  std::size_t size() const;

  /// Reads at most `size` bytes and returns how many there were, 0 only at the end of the file.
  /// Nothing if they cannot be read.
  std::optional<std::size_t> read(char* bytes, std::size_t size);

  /// Writes all bytes, or returns false when some of them cannot be written.
  bool write(std::string_view bytes);

 private:
  explicit PlainFile(int descriptor) noexcept : descriptor_(descriptor) {}
  static std::optional<PlainFile> opened(int descriptor);

  int descriptor_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_FILES_PLAIN_FILE_HPP
