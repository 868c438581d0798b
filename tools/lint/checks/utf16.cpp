#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Whether every second byte of the first few is NUL, as in ASCII characters of two bytes.
bool has_nul_at(std::string_view text, std::size_t parity) {
  constexpr std::size_t looked_at = 8;
  if (text.size() < looked_at) return false;
  for (std::size_t i = 0; i < looked_at; ++i) {
    if ((text[i] == '\0') != (i % 2 == parity)) return false;
  }
  return true;
}

}  // namespace

void check_utf16(const Source& source, Collector& findings) {
  const std::string_view text = source.text();
  const std::string_view mark = text.substr(0, 2);
  if (mark == "\xFF\xFE" || mark == "\xFE\xFF") {
    findings.add({{0, mark.size()}});
  } else if (has_nul_at(text, 0) || has_nul_at(text, 1)) {
    findings.add({{0, 1}});
  }
}

}  // namespace kelp::input::quill::lint
