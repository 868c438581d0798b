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
    const int modifiers = piece.kind == PieceKind::Unread ? 1 : 0;
    const std::size_t end = piece.range.end();
    // A token is on one line, and the protocol ends lines where the reader does not.
    for (std::size_t begin = piece.range.offset; begin < end;) {
      const std::size_t line_end = std::min(snapshot_.text().find('\r', begin), end);
      if (line_end > begin) add({begin, line_end - begin}, type, modifiers);
      begin = line_end + 1;
    }
  }

  Json json() && { return {{"data", std::move(data_)}}; }

 private:
  void add(const lint::Range& range, std::size_t type, int modifiers) {
    const PositionRange place = snapshot_.position_range_of(range);
    const bool is_same_line = place.start.line == last_.line;
    data_.push_back(place.start.line - last_.line);
    data_.push_back(place.start.character - (is_same_line ? last_.character : 0));
    data_.push_back(place.end.character - place.start.character);
    data_.push_back(type);
    data_.push_back(modifiers);
    last_ = place.start;
  }

  const Snapshot& snapshot_;
  Position last_ = {};
  Json data_ = Json::array();
};

Json tokens_between(const Snapshot& snapshot, const lint::Range& range) {
  const SourceOfText source(snapshot.read());
  PackedTokens tokens(snapshot);
  for (std::size_t i = snapshot.line_at(range.offset); i < snapshot.lines().size(); ++i) {
    if (snapshot.lines()[i].offset > range.end()) break;
    for (const LinePiece& piece : find_line_pieces(*source, i)) tokens.add(piece);
  }
  return std::move(tokens).json();
}

}  // namespace

Json semantic_tokens_options() {
  return {{"legend",
           {{"tokenTypes", token_types}, {"tokenModifiers", Json::array({modifier_of_unread})}}},
          {"full", true},
          {"range", true}};
}

Json semantic_tokens(const Snapshot& snapshot, const Surroundings&) {
  return tokens_between(snapshot, {0, snapshot.text().size()});
}

Json semantic_tokens_of_range(const Snapshot& snapshot, const lint::Range& range,
                              const Surroundings&) {
  return tokens_between(snapshot, range);
}

}  // namespace kelp::input::quill::language_server
