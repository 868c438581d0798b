// Any bytes as a key, a setting and the value of an option on the command line of the tool.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "tools/properties/keys.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = kelp::input::quill::as_text(data, size);
  text = text.substr(0, text.find('\0'));  // a program's argument ends at the first NUL
  kelp::input::quill::tool::check_key(text);
  kelp::input::quill::tool::check_post_arguments(text);
  return 0;
}
