// What check_recursion.sh must find: a function that calls itself, and two that call each other
// through an algorithm of the standard library.

#include <algorithm>
#include <string_view>

namespace kelp::input::quill {

int depth_of(std::string_view text);
bool is_even(std::string_view text);
bool is_odd(std::string_view text);

int depth_of(std::string_view text) {
  return text.empty() || text.front() != '(' ? 0 : depth_of(text.substr(1)) + 1;
}

bool is_even(std::string_view text) { return text.empty() || is_odd(text.substr(1)); }

bool is_odd(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [&](char) { return is_even(text.substr(1)); });
}

}  // namespace kelp::input::quill
