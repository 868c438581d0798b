#ifndef KELP_INPUT_QUILL_FILES_SYSTEM_CALLS_HPP
#define KELP_INPUT_QUILL_FILES_SYSTEM_CALLS_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The system calls for files, under the same names on every system: system_calls_posix.cpp or
// system_calls_windows.cpp. A negative result means that the call failed. A call that a signal
// interrupts is made again.

namespace kelp::input::quill {

/// Return a descriptor. Programs that the process starts do not inherit it.
int open_to_read(const std::string& path);
int open_to_write(const std::string& path);

void close_file(int descriptor) noexcept;

/// The size of a regular file, and 0 for anything else.
std::size_t size_of_file(int descriptor);

/// Return how many bytes were read or written. That can be fewer than asked for.
std::int64_t read_bytes(int descriptor, char* bytes, std::size_t size);
std::int64_t write_bytes(int descriptor, std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_FILES_SYSTEM_CALLS_HPP
