#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_PAGE_ADDRESS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_PAGE_ADDRESS_HPP

#include <string>
#include <string_view>

namespace kelp::input::quill::language_server {

/// Where the pages of the codes are for a person who uses an editor.
struct Pages {
  /// The address of a page, with "{CODE}" or, for the code in small letters, "{code}" in the place
  /// of its code; without one, the address before the names of Markdown files. Or empty: the pages
  /// are those that are installed.
  std::string address = {};
  std::string folder = {};  // where they are installed
};

/// Returns the address of the page of a code, or the empty text if its page is not installed.
std::string page_address(std::string_view code, const Pages& pages);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DIAGNOSTICS_PAGE_ADDRESS_HPP
