#include "quill-inp/session/session.hpp"

#include <utility>

namespace kelp::input::quill::tool {

Session::Session(const StandardStreams& streams, Output& out, CommonOptions options)
    : in_{streams.in, streams.in_file},
      messages_file_(streams.err_file),
      out_(out),
      options_(std::move(options)),
      reporter_(streams.err, options_.is_quiet, wants_color(options_.color, streams.err_file)) {}

Session::Session(const Session& whole, std::ostream& messages, Output& out)
    : in_(whole.in_),
      messages_file_(whole.messages_file_),
      out_(out),
      options_(whole.options_),
      reporter_(messages, options_.is_quiet, whole.reporter_.is_colored()),
      has_taken_input_(whole.has_taken_input_) {}

Session Session::for_one_file(std::ostream& messages, Output& out) const {
  return {*this, messages, out};
}

bool Session::is_watched() const { return !options_.is_quiet && can_erase_lines(messages_file_); }

std::string Session::shown_name(const std::string& argument) const {
  return argument == "-" ? options_.stdin_filename : argument;
}

Input Session::take_standard_input() {
  if (has_taken_input_) throw Trouble("standard input was read already, and can be read only once");
  has_taken_input_ = true;
  return in_;
}

void Session::report(const std::string& argument, const Trouble& trouble) {
  reporter_.error({shown_name(argument), trouble.line()}, trouble.what());
}

}  // namespace kelp::input::quill::tool
