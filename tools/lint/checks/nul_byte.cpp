#include <algorithm>

#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_nul_byte(const Source& source, Collector& findings) {
  const std::string_view text = source.text();
  const std::size_t at = text.find('\0');
  if (at == std::string_view::npos) return;
  const auto count = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\0'));
  findings.add({{at, 1}, {count_fact("count", count)}});
}

}  // namespace kelp::input::quill::lint
