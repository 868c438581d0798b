#include "tools/scale/in_memory_call.hpp"

#include <istream>
#include <ostream>
#include <streambuf>

#include "quill-inp/run.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Reads a text without a copy of it.
class View : public std::streambuf {
 public:
  explicit View(const std::string& text) {
    char* const begin = const_cast<char*>(text.data());  // only read, as an input stream does
    setg(begin, begin, begin + text.size());
  }
};

class Counter : public std::streambuf {
 public:
  std::size_t count() const { return count_; }

 private:
  int_type overflow(int_type c) override {
    ++count_;
    return traits_type::not_eof(c);
  }
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override {
    count_ += static_cast<std::size_t>(size);
    return size;
  }

  std::size_t count_ = 0;
};

}  // namespace

CallEnd call_in_memory(const std::vector<std::string>& arguments, const std::string& input) {
  View in_text(input);
  Counter out_text;
  Counter err_text;
  std::istream in(&in_text);
  std::ostream out(&out_text);
  std::ostream err(&err_text);
  const int code = run(arguments, {in, out, err});
  return {code, out_text.count(), err_text.count()};
}

}  // namespace kelp::input::quill::tool
