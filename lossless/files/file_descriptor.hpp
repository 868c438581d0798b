#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_DESCRIPTOR_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_DESCRIPTOR_HPP

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "kelp/input/quill/lossless/file_error.hpp"

namespace kelp::input::quill::lossless {

/// An open file of the operating system, closed when the object is destroyed.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor();

  int number() const { return number_; }

  /// Closes the file and returns the error of closing it, or 0. On some file systems, a full disk
  /// is reported only here.
  int close();

 private:
  int number_;
};

/// Opens `name` in the folder `folder` (AT_FDCWD for the current one). Programs that are started do
/// not inherit the file. Returns -1 and sets errno on failure, as openat() does.
int open_in(int folder, const std::string& name, int flags, unsigned mode = 0);

/// Returns the state of an open file. Throws FileError with this kind when that fails.
struct stat state_of(int file, FileFailure::Kind failure = FileFailure::Kind::NotExamined);

/// The number of bytes that are read at once if the size is not known.
inline constexpr std::uint64_t usual_chunk = std::uint64_t{256} * 1024;

/// Reads from the current position to the end of the file, but at most `limit` bytes and one more,
/// so that the caller sees when there are too many. Takes the memory for `expected` bytes at once,
/// and more when there are more. Throws FileError when reading fails.
std::string read_to_end(int file, std::uint64_t limit, std::uint64_t expected = usual_chunk);

/// Writes all data, with as many system calls as needed. Throws FileError when that fails.
void write_everything(int file, std::string_view data);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FILE_DESCRIPTOR_HPP
