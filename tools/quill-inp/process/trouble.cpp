#include "quill-inp/process/trouble.hpp"

#include <new>
#include <system_error>

namespace kelp::input::quill::tool {

std::string explain(const std::exception& error) {
  const bool is_memory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  return is_memory ? "out of memory" : error.what();
}

void throw_system_trouble(const std::string& action, int error) {
  throw Trouble(action + ": " + system_message(error));
}

std::string system_message(int error) { return std::generic_category().message(error); }

}  // namespace kelp::input::quill::tool
