#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>

#include "files/system_calls.hpp"

namespace kelp::input::quill {

namespace {

/// One call takes an unsigned int and returns an int.
constexpr std::size_t most_bytes = std::size_t{1} << 30;

/// The path in the system's own characters; empty for one that is not UTF-8.
std::wstring wide(const std::string& path) {
  const auto convert = [&path](wchar_t* out, int room) {
    return MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(),
                               static_cast<int>(path.size()), out, room);
  };
  constexpr std::size_t longest = 1 << 20;
  if (path.empty() || path.size() > longest) return {};
  std::wstring characters(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
  convert(characters.data(), static_cast<int>(characters.size()));
  return characters;
}

int open_file(const std::string& path, int flags) {
  const std::wstring characters = wide(path);
  int descriptor = -1;
  if (characters.empty()) return descriptor;
  _wsopen_s(&descriptor, characters.c_str(), flags | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
            _S_IREAD | _S_IWRITE);
  return descriptor;
}

}  // namespace

int open_to_read(const std::string& path) { return open_file(path, _O_RDONLY); }

int open_to_write(const std::string& path) {
  return open_file(path, _O_WRONLY | _O_CREAT | _O_TRUNC);
}

void close_file(int descriptor) noexcept { _close(descriptor); }

std::size_t size_of_file(int descriptor) {
  struct __stat64 status = {};
  const bool is_known = _fstat64(descriptor, &status) == 0;
  const bool is_regular = is_known && (status.st_mode & _S_IFMT) == _S_IFREG;
  return is_regular ? static_cast<std::size_t>(status.st_size) : 0;
}

std::int64_t read_bytes(int descriptor, char* bytes, std::size_t size) {
  return _read(descriptor, bytes, static_cast<unsigned>(std::min(size, most_bytes)));
}

std::int64_t write_bytes(int descriptor, std::string_view bytes) {
  return _write(descriptor, bytes.data(),
                static_cast<unsigned>(std::min(bytes.size(), most_bytes)));
}

}  // namespace kelp::input::quill
