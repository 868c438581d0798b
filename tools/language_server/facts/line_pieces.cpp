#include "language_server/facts/line_pieces.hpp"

#include <optional>
#include <string_view>

#include "lint/tokens.hpp"
#include "model/task_names.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Collects the pieces of one line.
class Pieces {
 public:
  explicit Pieces(const lint::Source& source) : source_(source) {}

  void add(PieceKind kind, std::string_view piece) {
    const std::string_view trimmed = trimmed_view(piece);
    if (!trimmed.empty()) list.push_back({kind, source_.range_of(trimmed)});
  }

  void add_value(std::string_view value) {
    add(lint::is_number(trimmed_view(value)) ? PieceKind::Number : PieceKind::Value, value);
  }

  void add_all(PieceKind kind, const std::vector<std::string_view>& tokens, std::size_t begin,
               std::size_t end) {
    for (std::size_t i = begin; i < end && i < tokens.size(); ++i) add(kind, tokens[i]);
  }

  std::vector<LinePiece> list = {};

 private:
  const lint::Source& source_;
};

/// Returns a name together with the "#" of its line.
std::string_view with_mark(std::string_view name, std::string_view line) {
  const std::size_t mark = line.find('#');
  const auto end = static_cast<std::size_t>(name.data() + name.size() - line.data());
  return name.empty() ? line.substr(mark, 1) : line.substr(mark, end - mark);
}

void add_parameters(std::string_view list, Pieces& pieces) {
  for (ParameterEntries entries(list); !entries.at_end();) {
    const ParameterPieces entry = entries.next();
    const bool is_kept = !trimmed_view(entry.name).empty();
    pieces.add(PieceKind::ParameterName, entry.name);
    if (!entry.value) continue;
    if (is_kept) {
      pieces.add_value(*entry.value);
    } else {
      pieces.add(PieceKind::Unread, *entry.value);
    }
  }
}

void add_command(const lint::Source& source, std::size_t line, Pieces& pieces) {
  const std::size_t index = *source.lines()[line].index;
  const HeaderPieces& header = source.header_pieces()[index];
  const std::string name = normalize_command_name(source.input().commands[index].name);
  pieces.add(is_task_name(name) ? PieceKind::TaskName : PieceKind::CommandName,
             with_mark(header.name, source.content(line)));
  if (header.kind == HeaderCommandKind::Assignment) pieces.add_value(header.value);
  if (header.kind == HeaderCommandKind::ParameterList) add_parameters(header.list, pieces);
  pieces.add(PieceKind::Unread, header.trailing);
}

/// Adds a keyword and the path after it, with the blanks in it.
void add_path_line(std::string_view line, const std::vector<std::string_view>& tokens,
                   Pieces& pieces) {
  pieces.add(PieceKind::Keyword, tokens.front());
  if (tokens.size() > 1)
    pieces.add(PieceKind::Path,
               line.substr(static_cast<std::size_t>(tokens[1].data() - line.data())));
}

void add_post_line(const PostCommand& command, std::string_view line,
                   const std::vector<std::string_view>& tokens, Pieces& pieces) {
  if (command.kind == PostCommandKind::Raw) {
    pieces.add(PieceKind::RawText, line);
    return;
  }
  if (command.kind == PostCommandKind::PostFile) {
    add_path_line(line, tokens, pieces);
    return;
  }
  const std::size_t numbers_end = 1 + command.atom_indices.size();
  pieces.add(PieceKind::Keyword, tokens.front());
  pieces.add_all(PieceKind::AtomNumber, tokens, 1, numbers_end);
  pieces.add_all(PieceKind::Number, tokens, numbers_end, tokens.size());
}

}  // namespace

std::vector<LinePiece> find_line_pieces(const lint::Source& source, std::size_t line) {
  const std::string_view content = source.content(line);
  const LineRecord& record = source.lines()[line];
  Pieces pieces(source);
  if (record.role == LineRole::Command) {
    add_command(source, line, pieces);
    return pieces.list;
  }
  const std::vector<std::string_view> tokens = lint::tokens_of(content);
  switch (record.role) {
    case LineRole::ChargeAndMultiplicity:
      pieces.add_all(PieceKind::Number, tokens, 0, tokens.size());
      break;
    case LineRole::Atom:
      pieces.add(PieceKind::Element, tokens.front());
      pieces.add_all(PieceKind::Number, tokens, 1, tokens.size());
      break;
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      add_path_line(content, tokens, pieces);
      break;
    case LineRole::PostCommand:
      add_post_line(source.input().post_commands[*record.index], content, tokens, pieces);
      break;
    case LineRole::Dropped:
      pieces.add(PieceKind::Unread, content);
      break;
    case LineRole::Blank:
    case LineRole::Command:
      break;
  }
  return pieces.list;
}

}  // namespace kelp::input::quill::language_server
