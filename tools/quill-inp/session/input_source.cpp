#include "quill-inp/session/input_source.hpp"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <utility>
#include <vector>

#include "files/failure.hpp"
#include "files/file_descriptor.hpp"
#include "files/file_state.hpp"
#include "quill-inp/files/file_advice.hpp"
#include "quill-inp/files/written_files.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::FileDescriptor;
using lossless::open_in;
using lossless::read_to_end;
using lossless::state_of;

[[noreturn]] void throw_not_regular(mode_t mode) {
  lossless::FileFailure failure;
  failure.kind = lossless::FileFailure::Kind::NotRegular;
  failure.type = lossless::type_of(mode);
  throw_trouble(failure, Purpose::Reading);
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

std::string read_at_most(int file, const struct stat& state, std::uint64_t limit) {
  const bool is_regular = S_ISREG(state.st_mode);
  std::string content = is_regular
                            ? read_to_end(file, limit, static_cast<std::uint64_t>(state.st_size))
                            : read_to_end(file, limit);
  if (content.size() > limit) throw_too_large(limit);
  return content;
}

/// Reads an open file that a path led to. `state` is its state before.
std::string read_regular_file(Session& session, int file, const struct stat& state) {
  const std::uint64_t limit = session.options().max_size;
  require_regular(state, limit);
  require_apart_from_output(session, state);
  std::string content = read_at_most(file, state, limit);
  if (!lossless::is_same_state(state, state_of(file))) throw Trouble("changed while it was read");
  return content;
}

/// Whether a pipe has something to read, or a writer closed it.
bool is_ready(int pipe) {
  struct pollfd state {};
  state.fd = pipe;
  state.events = POLLIN;
  return poll(&state, 1, 0) != 0;
}

/// Returns the first bytes of a pipe that was opened without blocking, an empty text if there are
/// none yet, and nothing if no writer has opened it: then there are no bytes and no sign of an end.
std::optional<std::string> begin_of_pipe(int pipe) {
  if (is_ready(pipe)) return std::string();
  // A writer may open, write and close the pipe between any two of these calls.
  char first = 0;
  const ssize_t count = read(pipe, &first, 1);
  if (count > 0) return std::string(1, first);
  if (count < 0 || is_ready(pipe)) return std::string();  // EAGAIN: there is a writer
  return std::nullopt;
}

/// Reads a pipe that another program writes to, such as the shell's <(...).
std::string read_pipe(const Session& session, int pipe, const struct stat& state) {
  std::optional<std::string> content = begin_of_pipe(pipe);
  if (!content) throw_not_regular(state.st_mode);
  const int flags = fcntl(pipe, F_GETFL);
  if (flags < 0 || fcntl(pipe, F_SETFL, flags & ~O_NONBLOCK) != 0)
    throw_system_trouble("cannot be read", errno);
  const std::uint64_t limit = session.options().max_size;
  *content += read_to_end(pipe, limit);
  if (content->size() > limit) throw_too_large(limit);
  return std::move(*content);
}

std::string read_file(Session& session, const std::string& path) {
  if (path.find('\0') != std::string::npos) throw Trouble("a file name cannot hold a NUL byte");
  // Not blocking, so that a pipe without a writer is refused at once.
  const FileDescriptor file(open_in(AT_FDCWD, path, O_RDONLY | O_NONBLOCK));
  if (file.number() < 0) throw_trouble(lossless::find_open_failure(path, errno), Purpose::Reading);
  const struct stat state = state_of(file.number());
  if (S_ISFIFO(state.st_mode)) return read_pipe(session, file.number(), state);
  return read_regular_file(session, file.number(), state);
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
  const struct stat state = state_of(*in.file);
  require_apart_from_output(session, state);
  // A stream treats a failed read as the end of the text; with the descriptor, they are different.
  return read_at_most(*in.file, state, limit);
}

}  // namespace

InputSource read_source(Session& session, const std::string& argument) {
  try {
    return {session.shown_name(argument),
            argument == "-" ? read_standard_input(session) : read_file(session, argument)};
  } catch (const lossless::FileError& error) {
    throw_trouble(error.failure(), Purpose::Reading);
  }
}

ReadInput read_input(Session& session, const std::string& argument) {
  InputSource source = read_source(session, argument);
  return {std::move(source.name), lossless::read_text(std::move(source.content))};
}

ReadInput read_for_replacing(Session& session, const std::string& argument,
                             std::chrono::milliseconds patience) {
  if (argument == "-") {
    static_cast<void>(session.take_standard_input());
    throw Trouble("standard input cannot be changed in place");
  }
  require_apart_from_output(session, argument);
  lossless::FileToReplace file =
      open_for_replacing(argument, {patience, session.options().max_size});
  std::string text = file.take_text();
  return {session.shown_name(argument), lossless::read_text(std::move(text)), std::move(file)};
}

ReadDocument read_document(Session& session, const std::string& argument) {
  InputSource source = read_source(session, argument);
  return {std::move(source.name), parse_string(source.content)};
}

void forget_lines(ReadInput& input) { input.read.lines = std::vector<LineRecord>(); }

// An empty string that is assigned leaves the memory where it is.
void forget_text(ReadInput& input) { std::string().swap(input.read.text); }

void require_apart_from_output(Session& session, const std::string& argument) {
  struct stat state {};
  const std::optional<int> file = session.input_file();
  const bool is_there =
      argument == "-" ? file && fstat(*file, &state) == 0 : stat(argument.c_str(), &state) == 0;
  if (is_there) require_apart_from_output(session, state);
}

}  // namespace kelp::input::quill::tool
