#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

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
  const std::vector<OddCharacter> odd = find_odd_characters(value);
  if (odd.size() < 2) return std::nullopt;
  const QuotePair pair{odd.front(), odd.back()};
  const bool is_around = pair.first.kind == OddKind::Quote && pair.last.kind == OddKind::Quote &&
                         pair.first.offset == 0 &&
                         pair.last.offset + pair.last.length == value.size();
  if (!is_around) return std::nullopt;
  return pair;
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
  const std::vector<OddCharacter>& odd = source.odd_characters();
  const std::size_t begin = source.range_of(value).offset;
  const auto first = std::lower_bound(
      odd.begin(), odd.end(), begin,
      [](const OddCharacter& character, std::size_t offset) { return character.offset < offset; });
  const bool begins = first != odd.end() && first->offset == begin && first->kind == OddKind::Quote;
  if (!begins || first + 1 == odd.end()) return value;
  const OddCharacter& next = *(first + 1);
  if (next.kind != OddKind::Quote || next.offset >= source.range_of(list).end()) return value;
  return source.text().substr(begin, next.offset + next.length - begin);
}

}  // namespace

Findings check_typographic_quote(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    if (const auto quotes = find_quotes(pieces.value))
      findings.push_back(make_finding(source, pieces.value, *quotes));
    for (const ParameterPieces& entry : entries_of(pieces)) {
      if (!entry.value || entry.value->empty()) continue;
      const std::string_view value = quoted_piece(source, pieces.list, *entry.value);
      if (const auto quotes = find_quotes(value))
        findings.push_back(make_finding(source, value, *quotes));
    }
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
