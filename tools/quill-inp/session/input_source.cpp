#include "quill-inp/session/input_source.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <utility>

#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace {

bool is_symbolic_link(const std::string& path) {
  struct stat state {};
  return lstat(path.c_str(), &state) == 0 && S_ISLNK(state.st_mode);
}

std::string_view kind_of_file(mode_t mode) {
  if (S_ISDIR(mode)) return "a folder";
  if (S_ISFIFO(mode)) return "a pipe";
  if (S_ISSOCK(mode)) return "a socket";
  return "a device";
}

[[noreturn]] void throw_not_regular(mode_t mode) {
  throw Trouble("is " + std::string(kind_of_file(mode)) +
                ", not a regular file; use '-' to read standard input");
}

struct Free {
  void operator()(char* pointer) const { std::free(pointer); }
};

/// Returns the absolute path with all symbolic links resolved.
std::string resolve_links(const std::string& path) {
  if (path.find('\0') != std::string::npos) throw Trouble("a file name cannot hold a NUL byte");
  const std::unique_ptr<char, Free> resolved(realpath(path.c_str(), nullptr));
  if (resolved) return resolved.get();
  const int error = errno;
  // Under /dev/fd there are links to open files without a name. A shell passes pipes in this way.
  struct stat state {};
  if (stat(path.c_str(), &state) == 0 && !S_ISREG(state.st_mode)) throw_not_regular(state.st_mode);
  if (error == ENOENT && is_symbolic_link(path))
    throw Trouble("is a symbolic link to a file that does not exist");
  throw_system_trouble("cannot be opened", error);
}

FileOrigin split_path(const std::string& resolved) {
  const std::size_t slash = resolved.rfind('/');
  FileOrigin origin;
  origin.folder = slash == 0 ? "/" : resolved.substr(0, slash);
  origin.name = resolved.substr(slash + 1);
  return origin;
}

[[noreturn]] void throw_too_large(std::uint64_t limit) {
  throw Trouble("is larger than " + counted(limit, "byte") + ", see --max-size");
}

void require_regular(const struct stat& state, std::uint64_t limit) {
  if (!S_ISREG(state.st_mode)) throw_not_regular(state.st_mode);
  if (static_cast<std::uint64_t>(state.st_size) > limit) throw_too_large(limit);
}

void require_apart_from_output(Session& session, const struct stat& state) {
  if (session.output().goes_into(state)) {
    throw Trouble(
        "is also where standard output goes; write to another file, or use --in-place with fmt, "
        "set, unset or add");
  }
}

std::string read_at_most(int file, std::uint64_t limit) {
  std::string content = read_to_end(file, limit);
  if (content.size() > limit) throw_too_large(limit);
  return content;
}

void read_file(InputSource& source, Session& session, const std::string& path) {
  const std::uint64_t limit = session.options().max_size;
  const std::string resolved = resolve_links(path);
  FileOrigin origin = split_path(resolved);
  // Not blocking, so that a pipe without a writer is refused at once. If a link has taken the place
  // of the resolved file, it is not followed.
  const FileDescriptor file(open_in(AT_FDCWD, resolved, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
  if (file.number() < 0) throw_system_trouble("cannot be opened", errno);
  origin.state = state_of(file.number());
  require_regular(origin.state, limit);
  require_apart_from_output(session, origin.state);
  source.content = read_at_most(file.number(), limit);
  if (!is_same_state(origin.state, state_of(file.number())))
    throw Trouble("changed while it was read");
  source.origin = std::move(origin);
}

/// Reads a stream that is not connected to a file.
std::string read_stream(std::istream& in, std::uint64_t limit) {
  std::string content;
  char chunk[4096];
  while (content.size() <= limit && in.good()) {
    in.read(chunk, sizeof chunk);
    content.append(chunk, static_cast<std::size_t>(in.gcount()));
  }
  if (in.bad()) throw Trouble("cannot be read");
  if (content.size() > limit) throw_too_large(limit);
  return content;
}

std::string read_standard_input(Session& session) {
  const std::uint64_t limit = session.options().max_size;
  const Input in = session.take_standard_input();
  if (!in.file) return read_stream(in.stream, limit);
  require_apart_from_output(session, state_of(*in.file));
  // A stream treats a failed read as the end of the text; with the descriptor, they are different.
  return read_at_most(*in.file, limit);
}

}  // namespace

InputSource read_source(Session& session, const std::string& argument) {
  InputSource source;
  source.name = session.shown_name(argument);
  if (argument == "-") {
    source.content = read_standard_input(session);
  } else {
    read_file(source, session, argument);
  }
  return source;
}

ReadInput read_input(Session& session, const std::string& argument) {
  InputSource source = read_source(session, argument);
  return {std::move(source.name), lossless::read_text(std::move(source.content)),
          std::move(source.origin)};
}

void require_apart_from_output(Session& session, const std::string& argument) {
  struct stat state {};
  const std::optional<int> file = session.input_file();
  const bool is_there =
      argument == "-" ? file && fstat(*file, &state) == 0 : stat(argument.c_str(), &state) == 0;
  if (is_there) require_apart_from_output(session, state);
}

}  // namespace kelp::input::quill::tool
