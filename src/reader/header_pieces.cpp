#include "reader/header_pieces.hpp"

#include <algorithm>
#include <string>

#include "kelp/core/text.hpp"

namespace kelp::input::quill {

namespace {

constexpr std::size_t npos = std::string_view::npos;

constexpr bool is_quote(char c) { return c == '"' || c == '\''; }

/// Returns the position of the first comma outside quotes at or after `start`, or the end.
std::size_t find_separator(std::string_view list, std::size_t start) {
  std::size_t i = start;
  for (; i < list.size() && list[i] != ','; ++i) {
    if (!is_quote(list[i])) continue;
    i = list.find(list[i], i + 1);  // the other kind of quote has no meaning until this one closes
    if (i == npos) return list.size();
  }
  return i;
}

/// line = "#" body ; only one "#" is taken off
std::string_view find_body(std::string_view line) {
  std::string_view body = trimmed_view(line);
  if (!body.empty() && body.front() == '#') body.remove_prefix(1);
  return trimmed_view(body);
}

/// Returns the position of the first "=" or "(", or the end.
std::size_t find_decisive(std::string_view body) {
  const auto is_decisive = [](char c) { return c == '=' || c == '('; };
  return static_cast<std::size_t>(std::find_if(body.begin(), body.end(), is_decisive) -
                                  body.begin());
}

/// `body` does not end in a blank, so everything after the parenthesis is text.
HeaderPieces find_list_pieces(std::string_view body, std::size_t open) {
  HeaderPieces pieces{HeaderCommandKind::ParameterList, body.substr(0, open)};
  const std::size_t close = body.rfind(')');
  pieces.is_closed = close != npos && close > open;
  if (!pieces.is_closed) {
    pieces.list = body.substr(open + 1);
    return pieces;
  }
  pieces.list = body.substr(open + 1, close - open - 1);
  pieces.trailing = body.substr(close + 1);
  return pieces;
}

/// Whether an entry has no name, but something that could be lost with it.
bool is_nameless_value(const ParameterPieces& entry) {
  return entry.value && trimmed_view(entry.name).empty();
}

}  // namespace

// body = name                      a flag
//      / name "=" value            an assignment
//      / name "(" list ")"         a parameter list
// Whichever of "=" and "(" comes first decides.
HeaderPieces find_header_pieces(std::string_view line) {
  const std::string_view body = find_body(line);
  const std::size_t decisive = find_decisive(body);
  if (decisive == body.size()) return {HeaderCommandKind::Flag, body};
  if (body[decisive] == '(') return find_list_pieces(body, decisive);
  return {HeaderCommandKind::Assignment, body.substr(0, decisive), body.substr(decisive + 1)};
}

// parameter = name [ "=" value ] ; the first "=" separates, within quotes too
ParameterPieces ParameterEntries::next() {
  const std::size_t end = find_separator(list_, start_);
  const std::string_view entry = list_.substr(start_, end - start_);
  start_ = end + 1;
  const std::size_t equals = entry.find('=');
  if (equals == npos) return {entry};
  return {entry.substr(0, equals), entry.substr(equals + 1)};
}

bool says_more_than_its_command(std::string_view line) {
  const HeaderPieces pieces = find_header_pieces(line);
  if (!pieces.trailing.empty()) return true;
  for (ParameterEntries entries(pieces.list); !entries.at_end();) {
    if (is_nameless_value(entries.next())) return true;
  }
  return false;
}

std::string_view trimmed_view(std::string_view text) {
  const std::string trimmed = core::text::trim(text);
  // Nothing before the trimmed text can be its first character: all of that is white space.
  return trimmed.empty() ? text.substr(0, 0)
                         : text.substr(text.find(trimmed.front()), trimmed.size());
}

}  // namespace kelp::input::quill
