#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_JSON_READING_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_JSON_READING_HPP

#include <string>
#include <string_view>

namespace kelp::input::quill::tool {

/// A JSON value that is neither a list nor an object. Only the member that `kind` names has a
/// meaning.
struct JsonScalar {
  enum class Kind { Null, Truth, Number, Text };

  Kind kind = Kind::Null;
  bool truth = false;
  double number = 0.0;
  std::string text = {};
};

/// Is told the pieces of a JSON text in their order. It refuses one by throwing Trouble.
class JsonListener {
 public:
  virtual ~JsonListener() = default;

  virtual void begin_object() = 0;
  virtual void begin_member(const std::string& name) = 0;
  virtual void end_object() = 0;
  virtual void begin_list() = 0;
  virtual void end_list() = 0;
  virtual void take(JsonScalar scalar) = 0;

 protected:
  JsonListener() = default;
  JsonListener(const JsonListener&) = default;
  JsonListener& operator=(const JsonListener&) = default;
};

/// Reads a JSON text and tells the listener its pieces; nothing else of the text is kept. Throws
/// Trouble, with the line, for a text that is not JSON, and when the listener does.
void read_json(std::string_view text, JsonListener& listener);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_JSON_READING_HPP
