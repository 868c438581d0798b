#include "quill-inp/session/session.hpp"

#include <utility>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

Session::Session(std::istream& in, Output& out, std::ostream& err, CommonOptions options)
    : in_(in),
      out_(out),
      options_(std::move(options)),
      reporter_(err, options_.is_quiet, wants_color(options_.color, err)) {}

std::string Session::shown_name(const std::string& argument) const {
  return argument == "-" ? options_.stdin_filename : argument;
}

std::istream& Session::take_standard_input() {
  if (has_taken_input_) throw Trouble("standard input was read already, and can be read only once");
  has_taken_input_ = true;
  return in_;
}

}  // namespace kelp::input::quill::tool
