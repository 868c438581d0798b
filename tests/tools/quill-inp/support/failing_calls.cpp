// Preloaded into the program by the tests of writing: counts the system calls that concern files,
// and makes a chosen one of them fail, or makes something happen before it.
//
//   QUILL_INP_CALL_LOG    a file that gets the name of every call, one per line
//   QUILL_INP_FAULT_AT    the number of a call, counted from 1
//   QUILL_INP_FAULT       what happens there: "errno N", it fails; "signal N", that arrives; "run
//                         COMMAND", the shell does that; of a read also "corrupt", a bit of what it
//                         gives is another, and "end", it gives nothing; of a call that creates a
//                         file "plant", another file of this name is there already
//   QUILL_INP_FLAG_LOG    a file that gets the flags of every call that has some, as in
//                         "openat CREAT EXCL"
//   QUILL_INP_SHORT       set: every write takes only half of what it is given
//
// Calls on the standard streams do not count.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

template <typename Function>
Function* find_next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::atomic<long> calls{0};  // of all threads
bool corrupts = false;       // the call that follows, if it is a read
bool ends = false;           // likewise
bool plants = false;         // before the call that follows

/// Runs a command as another program would be run, without this library.
void run_command(const char* command) {
  unsetenv("LD_PRELOAD");
  if (std::system(command) != 0) std::abort();
}

/// Appends a line to the file that a variable names, if it names one.
void append_to(const char* variable, const std::string& line) {
  const char* path = std::getenv(variable);
  if (path == nullptr) return;
  const long file = syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND, 0600);
  const std::string text = line + "\n";
  syscall(SYS_write, file, text.data(), text.size());
  syscall(SYS_close, file);
}

struct Flag {
  const char* name;
  int bit;
};

constexpr Flag open_flags[] = {{"CREAT", O_CREAT},         {"EXCL", O_EXCL},
                               {"NOFOLLOW", O_NOFOLLOW},   {"NONBLOCK", O_NONBLOCK},
                               {"DIRECTORY", O_DIRECTORY}, {"CLOEXEC", O_CLOEXEC},
                               {"NOCTTY", O_NOCTTY}};

void log_open(int flags) {
  std::string line = "openat";
  for (const Flag& flag : open_flags) {
    if ((flags & flag.bit) == flag.bit) line += std::string(" ") + flag.name;
  }
  append_to("QUILL_INP_FLAG_LOG", line);
}

/// Somebody else's file takes a name just before the program does.
void plant(int folder, const char* name) {
  const long file = syscall(SYS_openat, folder, name, O_WRONLY | O_CREAT | O_EXCL, 0600);
  syscall(SYS_write, file, "planted", std::size_t{7});
  syscall(SYS_close, file);
}

/// Returns whether the call has to fail. If so, sets errno.
bool fails(const char* name) {
  const long number_of_call = ++calls;
  append_to("QUILL_INP_CALL_LOG", name);
  const char* at = std::getenv("QUILL_INP_FAULT_AT");
  const char* fault = std::getenv("QUILL_INP_FAULT");
  if (at == nullptr || fault == nullptr || std::strtol(at, nullptr, 10) != number_of_call)
    return false;
  constexpr char run[] = "run ";
  if (std::strncmp(fault, run, sizeof run - 1) == 0) run_command(fault + sizeof run - 1);
  corrupts = std::strcmp(fault, "corrupt") == 0;
  ends = std::strcmp(fault, "end") == 0;
  plants = std::strcmp(fault, "plant") == 0;
  int number = 0;
  if (std::sscanf(fault, "signal %d", &number) == 1) {
    kill(getpid(), number);
    return false;
  }
  if (std::sscanf(fault, "errno %d", &number) != 1) return false;
  errno = number;
  return true;
}

bool is_standard_stream(int file) { return 0 <= file && file <= 2; }

bool fails_on(const char* name, int file) { return !is_standard_stream(file) && fails(name); }

mode_t mode_argument(int flags, va_list arguments) {
  const bool makes_file = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  return makes_file ? va_arg(arguments, mode_t) : 0;
}

int open_at(const char* function, int folder, const char* name, int flags, mode_t mode) {
  log_open(flags);
  plants = false;
  if (fails("openat")) return -1;
  if (plants) plant(folder, name);
  return find_next<int(int, const char*, int, ...)>(function)(folder, name, flags, mode);
}

}  // namespace

extern "C" {

int openat(int folder, const char* name, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = mode_argument(flags, arguments);
  va_end(arguments);
  return open_at("openat", folder, name, flags, mode);
}

int openat64(int folder, const char* name, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = mode_argument(flags, arguments);
  va_end(arguments);
  return open_at("openat64", folder, name, flags, mode);
}

ssize_t read(int file, void* data, size_t size) {
  corrupts = ends = false;
  if (fails_on("read", file)) return -1;
  if (ends) return 0;
  const ssize_t count = find_next<ssize_t(int, void*, size_t)>("read")(file, data, size);
  if (corrupts && count > 0) *static_cast<char*>(data) ^= 1;
  return count;
}

ssize_t write(int file, const void* data, size_t size) {
  if (fails_on("write", file)) return -1;
  const bool is_short = std::getenv("QUILL_INP_SHORT") != nullptr && !is_standard_stream(file);
  return find_next<ssize_t(int, const void*, size_t)>("write")(file, data,
                                                               is_short ? (size + 1) / 2 : size);
}

int close(int file) {
  if (fails_on("close", file)) {
    const int error = errno;
    find_next<int(int)>("close")(file);  // a close that reports an error has closed the file
    errno = error;
    return -1;
  }
  return find_next<int(int)>("close")(file);
}

int fsync(int file) {
  if (fails_on("fsync", file)) return -1;
  return find_next<int(int)>("fsync")(file);
}

int fstat(int file, struct stat* state) noexcept {
  if (fails_on("fstat", file)) return -1;
  return find_next<int(int, struct stat*)>("fstat")(file, state);
}

int fstatat(int folder, const char* name, struct stat* state, int flags) noexcept {
  if (fails("fstatat")) return -1;
  return find_next<int(int, const char*, struct stat*, int)>("fstatat")(folder, name, state, flags);
}

int fchmod(int file, mode_t mode) noexcept {
  if (fails("fchmod")) return -1;
  return find_next<int(int, mode_t)>("fchmod")(file, mode);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (fails("fchown")) return -1;
  return find_next<int(int, uid_t, gid_t)>("fchown")(file, owner, group);
}

int faccessat(int folder, const char* name, int mode, int flags) noexcept {
  append_to("QUILL_INP_FLAG_LOG", (flags & AT_EACCESS) != 0 ? "faccessat EACCESS" : "faccessat");
  if (fails("faccessat")) return -1;
  return find_next<int(int, const char*, int, int)>("faccessat")(folder, name, mode, flags);
}

ssize_t fgetxattr(int file, const char* name, void* value, size_t size) noexcept {
  if (fails("fgetxattr")) return -1;
  return find_next<ssize_t(int, const char*, void*, size_t)>("fgetxattr")(file, name, value, size);
}

int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
  if (fails("fsetxattr")) return -1;
  return find_next<int(int, const char*, const void*, size_t, int)>("fsetxattr")(file, name, value,
                                                                                 size, flags);
}

int flock(int file, int operation) noexcept {
  if (fails("flock")) return -1;
  return find_next<int(int, int)>("flock")(file, operation);
}

int fremovexattr(int file, const char* name) noexcept {
  if (fails("fremovexattr")) return -1;
  return find_next<int(int, const char*)>("fremovexattr")(file, name);
}

int renameat(int from, const char* old_name, int to, const char* new_name) noexcept {
  if (fails("renameat")) return -1;
  return find_next<int(int, const char*, int, const char*)>("renameat")(from, old_name, to,
                                                                        new_name);
}

int linkat(int from, const char* old_name, int to, const char* new_name, int flags) noexcept {
  if (fails("linkat")) return -1;
  return find_next<int(int, const char*, int, const char*, int)>("linkat")(from, old_name, to,
                                                                           new_name, flags);
}

int unlinkat(int folder, const char* name, int flags) noexcept {
  if (fails("unlinkat")) return -1;
  return find_next<int(int, const char*, int)>("unlinkat")(folder, name, flags);
}

}  // extern "C"
