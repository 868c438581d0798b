#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"
#include "lint/odd_characters.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr bool is_single(char32_t quote) { return 0x2018 <= quote && quote <= 0x201B; }

/// The typographic quotes at both ends of a value.
struct QuotePair {
  OddCharacter first;
  OddCharacter last;
};

/// An apostrophe in a word looks the same, so a quote counts only at the beginning of a value.
std::optional<QuotePair> find_quotes(std::string_view value) {
  const auto first = next_odd_character(value, 0);
  if (!first || first->kind != OddKind::Quote || first->offset > 0) return std::nullopt;
  OddCharacter last = *first;
  while (const auto next = next_odd_character(value, last.end())) last = *next;
  const bool is_around =
      last.offset > 0 && last.kind == OddKind::Quote && last.end() == value.size();
  if (!is_around) return std::nullopt;
  return QuotePair{*first, last};
}

/// Safe as long as the ASCII quote is not in the value itself.
Finding make_finding(const Source& source, std::string_view value, const QuotePair& quotes) {
  const std::string quote = is_single(quotes.first.code_point) ? "'" : "\"";
  const std::size_t base = source.range_of(value).offset;
  Finding finding{{base + quotes.first.offset, quotes.first.length}, {text_fact("value", value)}};
  if (value.find(quote) == std::string_view::npos) {
    finding.mend = Mend{
        {{finding.range, quote}, {{base + quotes.last.offset, quotes.last.length}, quote}}, true};
  }
  return finding;
}

/// A comma between the quotes has cut the value into several entries, so the list is looked at
/// from the "=" of an entry to the next typographic quote.
std::string_view quoted_piece(const Source& source, std::string_view list, std::string_view value) {
  const std::size_t begin = source.range_of(value).offset;
  const std::string_view rest = source.text().substr(begin, source.range_of(list).end() - begin);
  const auto first = next_odd_character(value, 0);
  if (!first || first->offset > 0 || first->kind != OddKind::Quote) return value;
  const auto next = next_odd_character(rest, first->end());
  if (!next || next->kind != OddKind::Quote) return value;
  return rest.substr(0, next->end());
}

}  // namespace

void check_typographic_quote(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    if (const auto quotes = find_quotes(pieces.value))
      findings.add(make_finding(source, pieces.value, *quotes));
    Entries entries(pieces);
    while (const auto entry = entries.next()) {
      if (!entry->value || entry->value->empty()) continue;
      const std::string_view value = quoted_piece(source, pieces.list, *entry->value);
      if (const auto quotes = find_quotes(value))
        findings.add(make_finding(source, value, *quotes));
    }
  }
}

}  // namespace kelp::input::quill::lint
