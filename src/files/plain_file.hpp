#ifndef KELP_INPUT_QUILL_FILES_PLAIN_FILE_HPP
#define KELP_INPUT_QUILL_FILES_PLAIN_FILE_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// An open file of bytes: no buffer, no locale, and line ends as they are in the file. The streams
/// of the standard libraries differ here. Some treat a read that fails as the end of the file, or a
/// failed allocation as a failed read, and the bytes of a path have a different meaning on each
/// system. Paths are UTF-8 on systems that count in characters, and bytes on all others.
class PlainFile {
 public:
  /// Opens an existing file. Returns nothing if that is not possible, and for a path with a NUL in
  /// it, which would name another file.
  static std::optional<PlainFile> for_reading(const std::string& path);

  /// Opens an empty file: a new one, or an existing one whose content is removed. Returns nothing
  /// if that is not possible.
  static std::optional<PlainFile> for_writing(const std::string& path);

  PlainFile(PlainFile&& other) noexcept;
  PlainFile& operator=(PlainFile&&) = delete;
  ~PlainFile();

  /// The size of a regular file, and 0 for anything else.
  std::size_t size() const;

  /// Reads at most `size` bytes and returns how many were read, 0 only at the end of the file.
  /// Returns nothing if they cannot be read.
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
