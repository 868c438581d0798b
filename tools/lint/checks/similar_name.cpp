#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::lint {

namespace {

/// A name that other inputs also use is spelled as intended.
std::optional<std::string> find_similar(const std::string& name, const Options& options) {
  const std::vector<std::string>* others = options.other_names;
  if (name.empty() || is_known(name, options)) return std::nullopt;
  if (others && std::binary_search(others->begin(), others->end(), name)) return std::nullopt;
  if (auto known = meant_name(name, options)) return known;
  return others ? tool::nearest_name(name, *others) : std::nullopt;
}

}  // namespace

void check_similar_name(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const std::string_view name = pieces_of(source, i).name;
    if (first_word(name).size() < name.size()) continue;
    const auto similar = find_similar(normalize_command_name(name), source.options());
    if (!similar) continue;
    const Range range = source.range_of(name);
    findings.add({range,
                  {text_fact("name", name), text_fact("similar", *similar)},
                  {},
                  Mend{{{range, *similar}}, false}});
  }
}

}  // namespace kelp::input::quill::lint
