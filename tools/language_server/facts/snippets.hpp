#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SNIPPETS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SNIPPETS_HPP

#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::language_server {

/// Returns the forms of a line of which some words in brackets may be left out, the shortest one
/// first: "S i j [k [l]] value steps" gives three. A form without brackets gives itself.
std::vector<std::string> variants_of(std::string_view form);

/// Returns a form as a snippet of the protocol, in which every word after the first one is a place
/// to fill: "B i j" gives "B ${1:i} ${2:j}".
std::string snippet_of(std::string_view form);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SNIPPETS_HPP
