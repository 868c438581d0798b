#include "language_server/session/settings.hpp"

namespace kelp::input::quill::language_server {

Settings settings_of(const Json& section) {
  Settings settings;
  const Json& numbers = find_member(find_member(section, "inlayHints"), "atomNumbers");
  if (numbers.is_boolean()) settings.shows_atom_numbers = numbers.get<bool>();
  const Json& pages = find_member(section, "pages");
  if (pages.is_string()) settings.pages = pages.get<std::string>();
  return settings;
}

}  // namespace kelp::input::quill::language_server
