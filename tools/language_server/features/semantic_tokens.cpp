#include <algorithm>
#include <array>

#include "language_server/facts/line_pieces.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// The types of the protocol that are used here. A token has the index of its type.
constexpr std::array<const char*, 8> token_types = {"function", "keyword", "parameter", "string",
                                                    "number",   "type",    "variable",  "comment"};

std::size_t index_of(std::string_view type) {
  return static_cast<std::size_t>(std::find(token_types.begin(), token_types.end(), type) -
                                  token_types.begin());
}

std::string_view type_of(PieceKind kind) {
  switch (kind) {
    case PieceKind::CommandName:
      return "function";
    case PieceKind::TaskName:
    case PieceKind::Keyword:
      return "keyword";
    case PieceKind::ParameterName:
      return "parameter";
    case PieceKind::Value:
    case PieceKind::Path:
      return "string";
    case PieceKind::Number:
      return "number";
    case PieceKind::Element:
      return "type";
    case PieceKind::AtomNumber:
      return "variable";
    case PieceKind::RawText:
    case PieceKind::Unread:
      break;
  }
  return "comment";
}

// The only modifier, for what the reader drops.
constexpr const char* modifier_of_unread = "deprecated";

/// Tokens as the protocol packs them: five numbers each, the place relative to the token before.
class PackedTokens {
 public:
  explicit PackedTokens(const Snapshot& snapshot) : snapshot_(snapshot) {}

  void add(const LinePiece& piece) {
    const std::size_t type = index_of(type_of(piece.kind));
    const std::size_t modifiers = piece.kind == PieceKind::Unread ? 1 : 0;
    std::string_view rest = snapshot_.text().substr(piece.range.offset, piece.range.length);
    // A token is on one line, and the protocol ends lines where the reader does not.
    while (!rest.empty()) {
      const std::size_t size = std::min(rest.find('\r'), rest.size());
      if (size > 0) add(snapshot_.range_of(rest.substr(0, size)), type, modifiers);
      rest.remove_prefix(std::min(size + 1, rest.size()));
    }
  }

  Json json() const { return {{"data", data_}}; }

 private:
  void add(const lint::Range& range, std::size_t type, std::size_t modifiers) {
    const std::size_t line_before = place_.line;
    const std::size_t character_before = place_.character;
    move_to(range.offset);
    const bool is_same_line = place_.line == line_before;
    data_.push_back(place_.line - line_before);
    data_.push_back(place_.character - (is_same_line ? character_before : 0));
    data_.push_back(units_between(range.offset, range.end()));
    data_.push_back(type);
    data_.push_back(modifiers);
  }

  /// Moves on to the beginning of the next token. Counts from the token before it, so that a line
  /// with many tokens takes no more time than many lines.
  void move_to(std::size_t offset) {
    const std::string_view gap = snapshot_.text().substr(offset_, offset - offset_);
    if (gap.find_first_of("\r\n") == std::string_view::npos) {
      place_.character += units_between(offset_, offset);
    } else {
      place_ = snapshot_.position_of(offset);
    }
    offset_ = offset;
  }

  std::size_t units_between(std::size_t begin, std::size_t end) const {
    return count_units(snapshot_.text().substr(begin, end - begin), snapshot_.encoding());
  }

  const Snapshot& snapshot_;
  std::size_t offset_ = 0;  // of the last token
  Position place_ = {};     // of the last token
  std::vector<std::size_t> data_ = {};
};

Json tokens_between(const Snapshot& snapshot, const lint::Range& range) {
  const SourceOfText source(snapshot.read());
  PackedTokens tokens(snapshot);
  for (std::size_t i = snapshot.line_at(range.offset); i < snapshot.lines().size(); ++i) {
    if (snapshot.lines()[i].offset > range.end()) break;
    for (const LinePiece& piece : find_line_pieces(*source, i)) tokens.add(piece);
  }
  return tokens.json();
}

}  // namespace

Json semantic_tokens_options() {
  return {{"legend",
           {{"tokenTypes", token_types}, {"tokenModifiers", Json::array({modifier_of_unread})}}},
          {"full", true},
          {"range", true}};
}

Json semantic_tokens(const Snapshot& snapshot, const Surroundings& /*surroundings*/) {
  return tokens_between(snapshot, {0, snapshot.text().size()});
}

Json semantic_tokens_of_range(const Snapshot& snapshot, const lint::Range& range,
                              const Surroundings& /*surroundings*/) {
  return tokens_between(snapshot, range);
}

}  // namespace kelp::input::quill::language_server
