#include "tools/properties/serving.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "language_server/documents/open_documents.hpp"
#include "language_server/framing/message_reader.hpp"
#include "language_server/run.hpp"
#include "properties/violation.hpp"

namespace kelp::input::quill::language_server {

namespace {

// Long enough for any message of a fuzzer, and short enough that some are too long.
constexpr std::size_t longest_message = 4096;

std::string framed(std::string_view text) {
  return "Content-Length: " + std::to_string(text.size()) + "\r\n\r\n" + std::string(text);
}

/// Runs a server on the bytes of a connection and returns what it sent.
std::vector<Json> messages_of_server(const std::string& bytes) {
  std::istringstream in(bytes);
  std::ostringstream out;
  ServerOptions options;
  options.longest_message = longest_message;
  const int code = run(in, out, options);
  require(code == 0 || code == 1, "a session ends with an exit code of the protocol", bytes);

  std::istringstream sent(out.str());
  MessageReader reader(sent, out.str().size());
  std::vector<Json> messages;
  for (;;) {
    const Incoming incoming = reader.read();
    if (incoming.kind != Incoming::Kind::Message) {
      require(incoming.kind == Incoming::Kind::End, "what is sent is framed", bytes);
      return messages;
    }
    messages.push_back(Json::parse(incoming.text));
    require(messages.back()["jsonrpc"] == "2.0", "what is sent has a version", bytes);
  }
}

bool is_request(const Json& message) {
  return message.is_object() && message.contains("id") && message.contains("method") &&
         !message["id"].is_null();
}

/// The identities of the requests among some messages, and how often each is there.
std::map<std::string, std::size_t> count_requests(const std::vector<std::string>& texts) {
  std::map<std::string, std::size_t> counts;
  for (const std::string& text : texts) {
    const Json message = Json::parse(text, nullptr, false);
    if (is_request(message)) ++counts[message["id"].dump()];
  }
  return counts;
}

std::vector<std::string> lines_of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

constexpr std::string_view initialize =
    R"({"jsonrpc":"2.0","id":"first","method":"initialize","params":{"capabilities":)"
    R"({"textDocument":{"codeAction":{"codeActionLiteralSupport":{}}}}}})";
constexpr std::string_view opening =
    R"({"jsonrpc":"2.0","method":"textDocument/didOpen","params":{"textDocument":{"uri":"a:b",)"
    R"("languageId":"","version":1,"text":"\#opt(a,a)\n0 1\nO 0 0 0\nH 0 0 1\nA 1 2 3\nB 1 2\n"}}})";

// Texts that a fuzzer edits: characters of one to four bytes, and all line ends.
const std::u32string alphabet[] = {U"a",      U"\n",     U"\r",         U"\r\n",
                                   U"\u00E9", U"\u20AC", U"\U0001F600", U"",
                                   U"b\nc",   U"\n\r",   U"1 2",        U"\U0001F600\r"};

/// Takes one number after another from bytes; zeros at the end.
class Choices {
 public:
  explicit Choices(std::string_view bytes) : bytes_(bytes) {}

  bool are_left() const { return !bytes_.empty(); }
  std::size_t below(std::size_t bound) {
    if (bytes_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return byte % bound;
  }

 private:
  std::string_view bytes_;
};

std::string utf8_of(const std::u32string& text) {
  std::string bytes;
  for (const char32_t c : text) {
    if (c < 0x80) {
      bytes += static_cast<char>(c);
    } else if (c < 0x800) {
      bytes += static_cast<char>(0xC0U | (c >> 6U));
      bytes += static_cast<char>(0x80U | (c & 0x3FU));
    } else if (c < 0x10000) {
      bytes += static_cast<char>(0xE0U | (c >> 12U));
      bytes += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
      bytes += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
      bytes += static_cast<char>(0xF0U | (c >> 18U));
      bytes += static_cast<char>(0x80U | ((c >> 12U) & 0x3FU));
      bytes += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
      bytes += static_cast<char>(0x80U | (c & 0x3FU));
    }
  }
  return bytes;
}

std::size_t units_of(char32_t c, PositionEncoding encoding) {
  if (encoding == PositionEncoding::Utf32) return 1;
  if (encoding == PositionEncoding::Utf16) return c < 0x10000 ? 1 : 2;
  return utf8_of(std::u32string(1, c)).size();
}

/// Whether a line ends with the character before `at`. CR LF is one line end.
bool ends_line(const std::u32string& text, std::size_t at) {
  const char32_t before = text[at - 1];
  return before == U'\n' || (before == U'\r' && (at == text.size() || text[at] != U'\n'));
}

/// The position of a character, counted from the beginning of the text as a client may do it.
Position position_in(const std::u32string& text, std::size_t at, PositionEncoding encoding) {
  Position position;
  for (std::size_t i = 0; i < at; ++i) {
    position.character += units_of(text[i], encoding);
    if (!ends_line(text, i + 1)) continue;
    ++position.line;
    position.character = 0;
  }
  return position;
}

/// Whether a place is in the middle of CR LF, which no position names.
bool is_in_line_end(const std::u32string& text, std::size_t at) {
  return at > 0 && at < text.size() && text[at - 1] == U'\r' && text[at] == U'\n';
}

/// Whether the line ends at a place, so that any position after it names the place, too.
bool is_at_line_end(const std::u32string& text, std::size_t at) {
  return at == text.size() || text[at] == U'\n' || text[at] == U'\r';
}

std::size_t choose_place(const std::u32string& text, Choices& choices) {
  const std::size_t at = choices.below(text.size() + 1);
  return is_in_line_end(text, at) ? at + 1 : at;
}

Position choose_position(const std::u32string& text, std::size_t at, PositionEncoding encoding,
                         Choices& choices) {
  Position position = position_in(text, at, encoding);
  if (is_at_line_end(text, at)) position.character += choices.below(3);
  return position;
}

/// Makes one change in the client's text and returns it as the client sends it.
Json edit(std::u32string& text, PositionEncoding encoding, Choices& choices) {
  const std::u32string& inserted = alphabet[choices.below(std::size(alphabet))];
  if (choices.below(16) == 15) {
    text = inserted;
    return {{"text", utf8_of(text)}};
  }
  std::size_t begin = choose_place(text, choices);
  std::size_t end = choose_place(text, choices);
  if (end < begin) std::swap(begin, end);
  const Position first = choose_position(text, begin, encoding, choices);
  Position last = begin == end ? first : choose_position(text, end, encoding, choices);
  text.replace(begin, end - begin, inserted);
  return {{"range", to_json(PositionRange{first, last})}, {"text", utf8_of(inserted)}};
}

void check_edits(std::string_view bytes, PositionEncoding encoding) {
  Choices choices(bytes);
  std::u32string text;
  OpenDocument document("a:b", 0, "", encoding);
  for (std::int64_t version = 1; choices.are_left(); ++version) {
    Json changes = Json::array();
    for (std::size_t count = choices.below(4); count > 0; --count)
      changes.push_back(edit(text, encoding, choices));
    document.change(version, changes);
    const std::string expected = utf8_of(text);
    require(document.text() == expected, "the server has the text of the client", bytes);
    // Reading it now and then makes a snapshot, from which the next change takes the text.
    if (choices.below(2) == 0) continue;
    const Snapshot& snapshot = document.snapshot();
    require(snapshot.text() == expected, "what is read is the text of the client", bytes);
    const Position end = position_in(text, text.size(), encoding);
    require(snapshot.position_of(expected.size()) == end, "the text ends where it should", bytes);
    require(snapshot.offset_of(end) == expected.size(), "its end is found again", bytes);
  }
}

}  // namespace

void check_connection(std::string_view bytes) { messages_of_server(std::string(bytes)); }

void check_messages(std::string_view lines) {
  std::string connection = framed(initialize) + framed(opening);
  const std::vector<std::string> texts = lines_of(lines);
  for (const std::string& text : texts) connection += framed(text);
  const std::map<std::string, std::size_t> requests = count_requests(texts);
  std::map<std::string, std::size_t> answers;
  for (const Json& message : messages_of_server(connection)) {
    if (message.contains("method") || message["id"].is_null() || message["id"] == "first") continue;
    ++answers[message["id"].dump()];
  }
  for (const auto& [id, count] : answers) {
    const auto request = requests.find(id);
    require(request != requests.end() && count <= request->second, "an answer is one of a request",
            lines);
  }
}

void check_edits(std::string_view bytes) {
  for (const auto encoding :
       {PositionEncoding::Utf8, PositionEncoding::Utf16, PositionEncoding::Utf32})
    check_edits(bytes, encoding);
}

}  // namespace kelp::input::quill::language_server
