#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_READER_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_READER_HPP

#include <cstddef>
#include <istream>
#include <optional>
#include <string>

namespace kelp::input::quill::language_server {

/// What came next in the input.
struct Incoming {
  enum class Kind {
    Message,   // `text` is the content of a message
    TooLong,   // a message was longer than is accepted; all of it was skipped
    Unframed,  // the header does not say how long the message is, so nothing after it can be found
    End,       // the input ended, perhaps within a message
  };

  Kind kind = Kind::End;
  std::string text = {};
};

/// Takes messages out of a stream of bytes. Each comes after a header of lines "Name: value" that
/// end in CR LF, of which only Content-Length counts, and an empty line. Names are in any letter
/// case. Memory is taken only for bytes that have arrived.
class MessageReader {
 public:
  /// Keeps the stream. Messages with more than `longest` bytes are skipped.
  MessageReader(std::istream& in, std::size_t longest) : in_(in), longest_(longest) {}

  /// Waits for the next message and returns it.
  Incoming read();

  /// Whether some of the next message has arrived already, so that read() waits at most for the
  /// rest of it.
  bool has_arrived();

 private:
  std::optional<std::string> read_header_line();
  std::optional<Incoming> read_header(std::size_t& length);
  Incoming read_content(std::size_t length);
  Incoming skip(std::size_t length);

  std::istream& in_;
  std::size_t longest_;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_READER_HPP
