#include "tools/quill-inp/support/metered_call.hpp"

#include <array>
#include <istream>
#include <ostream>
#include <streambuf>
#include <utility>

#include "quill-inp/run.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Standard input, which takes down how many allocations there were before it was read: what comes
/// before belongs to the command line, and not to a file.
class FirstFile : public std::streambuf {
 public:
  FirstFile(const AllocationWindow& window, std::string text)
      : window_(window), text_(std::move(text)) {}
  std::uint64_t allocations_before() const { return allocations_before_; }

 private:
  int_type underflow() override {
    if (gptr() != nullptr) return traits_type::eof();
    allocations_before_ = window_.allocations();
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(*gptr());
  }

  const AllocationWindow& window_;
  std::string text_;
  std::uint64_t allocations_before_ = 0;
};

/// What is written, without allocating: a stream would treat a failed allocation as a failed write.
class Captured : public std::streambuf {
 public:
  Captured() { setp(data_.data(), data_.data() + data_.size()); }
  std::string text() const { return {pbase(), pptr()}; }

 private:
  std::array<char, 16384> data_{};
};

}  // namespace

MeteredCall run_failing(const std::vector<std::string>& arguments, std::string input,
                        std::uint64_t failing, Shortage shortage) {
  Captured out_text;
  Captured err_text;
  std::ostream out(&out_text);
  std::ostream err(&err_text);
  MeteredCall call;
  {
    const AllocationWindow window(failing, shortage);
    FirstFile in_text(window, std::move(input));
    std::istream in(&in_text);
    call.code = run(arguments, {in, out, err});
    call.allocations_before = in_text.allocations_before();
    call.allocations = window.allocations();
  }
  call.out = out_text.text();
  call.err = err_text.text();
  return call;
}

}  // namespace kelp::input::quill::tool
