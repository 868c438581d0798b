#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_several_words(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const std::string_view name = pieces_of(source, i).name;
    const std::string_view word = first_word(name);
    if (word.size() < name.size() && is_known(word, source.options()))
      findings.add({source.range_of(name), {text_fact("name", name), text_fact("word", word)}});
  }
}

}  // namespace kelp::input::quill::lint
