#ifndef KELP_INPUT_QUILL_PYTHON_REFUSED_HPP
#define KELP_INPUT_QUILL_PYTHON_REFUSED_HPP

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace kelp::input::quill::python {

/// A text was not made because it would lose something. In Python it is a LossError.
class Refused : public std::exception {
 public:
  Refused(std::string reason, std::optional<std::size_t> line)
      : reason_(std::move(reason)), line_(line) {}

  const char* what() const noexcept override { return reason_.c_str(); }
  const std::string& reason() const { return reason_; }

  /// The line, counted from 1, that the reason is about, if it is about one.
  std::optional<std::size_t> line() const { return line_; }

 private:
  std::string reason_;
  std::optional<std::size_t> line_;
};

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_REFUSED_HPP
