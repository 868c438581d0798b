#include "quill-inp/trouble.hpp"

#include <system_error>

namespace kelp::input::quill::tool {

void throw_system_trouble(const std::string& action, int error) {
  throw Trouble(action + ": " + system_message(error));
}

std::string system_message(int error) { return std::generic_category().message(error); }

}  // namespace kelp::input::quill::tool
