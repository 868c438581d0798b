#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_comment_like_command(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const std::string_view name = pieces_of(source, i).name;
    const std::string_view word = first_word(name);
    const bool is_meant = is_known(name, source.options()) || is_known(word, source.options());
    if (word.size() < name.size() && !is_meant)
      findings.add({source.range_of(name), {text_fact("name", name)}});
  }
}

}  // namespace kelp::input::quill::lint
