#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_nameless_entry(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    Entries entries(pieces_of(source, i));
    while (const auto entry = entries.next()) {
      if (entry->name.empty() && entry->value)
        findings.add({source.range_of(*entry->value), {text_fact("value", *entry->value)}});
    }
  }
}

}  // namespace kelp::input::quill::lint
