#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_JSON_WRITER_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_JSON_WRITER_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// Writes one JSON text while it is made, so that the text never has to fit into memory:
///
///   JsonWriter json(sink);
///   json.begin_object(JsonWriter::Layout::OneLine);
///   json.member("symbol").text("He");
///   json.end_object();
///   json.finish();  // {"symbol": "He"}
///
/// Memory is allocated only when the writer is made, so a text is not left half written because
/// memory runs out.
class JsonWriter {
 public:
  /// Takes a piece of the text; never a part of a character.
  using Sink = std::function<void(std::string_view)>;

  /// How the entries of a list or an object are written: each on its own line, which is only for
  /// the outermost ones and for those in others of this layout; or with blanks between them.
  enum class Layout { Lines, OneLine };

  explicit JsonWriter(Sink sink);

  void begin_object(Layout layout) { begin('{', layout); }
  void end_object() { end('}'); }
  void begin_list(Layout layout) { begin('[', layout); }
  void end_list() { end(']'); }

  /// Begins a member of an object; its value comes next. The name needs no escapes.
  JsonWriter& member(std::string_view name);

  /// Writes a text of any bytes, see json_text.hpp.
  void text(std::string_view text);

  /// Writes any number, see json_text.hpp. A finite one is written with the fewest digits that are
  /// read back as the same number.
  void number(double number);

  void integer(std::int64_t number);
  void truth(bool is_true) { value(is_true ? "true" : "false"); }
  void null() { value("null"); }

  /// Ends the text with a line end and passes on what the sink has not got yet.
  void finish();

 private:
  struct Level {
    Layout layout;
    bool has_entries;
    bool is_list;
  };

  void begin(char bracket, Layout layout);
  void end(char bracket);
  void begin_entry();
  void begin_value();
  void begin_line();
  void value(std::string_view word);
  void put(char c) { put(std::string_view(&c, 1)); }
  void put(std::string_view piece);
  void put_escaped(std::string_view text);
  void put_bytes(std::string_view bytes);
  void flush();

  Sink sink_;
  std::string waiting_;
  std::array<Level, 16> levels_ = {};  // the mend of a finding is the deepest, at twelve levels
  std::size_t depth_ = 0;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_JSON_WRITER_HPP
