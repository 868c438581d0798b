#include "language_server/framing/message_reader.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::language_server {

namespace {

// Far more than the two lines that the protocol knows.
constexpr std::size_t longest_header = 8192;
constexpr std::size_t piece_size = std::size_t{1} << 16U;

/// A name and a value of a header, without the blanks around them.
struct HeaderField {
  std::string name;
  std::string value;
};

HeaderField field_of(const std::string& line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string::npos) return {};
  return {core::text::to_lower_copy(core::text::trim(line.substr(0, colon))),
          core::text::trim(line.substr(colon + 1))};
}

/// Returns a length of decimal digits alone. One that no number can hold is the largest number.
std::optional<std::size_t> length_of(std::string_view digits) {
  std::size_t length = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, length);
  if (stop != end || error == std::errc::invalid_argument) return std::nullopt;
  return error == std::errc() ? length : std::numeric_limits<std::size_t>::max();
}

}  // namespace

bool MessageReader::has_arrived() { return in_.good() && in_.rdbuf()->in_avail() > 0; }

Incoming MessageReader::read() {
  std::size_t length = 0;
  if (const std::optional<Incoming> failure = read_header(length)) return *failure;
  return length > longest_ ? skip(length) : read_content(length);
}

/// Reads the header up to its empty line and sets `length` to the length of the content. Returns
/// nothing in that case, and what to answer if the header does not give a length.
std::optional<Incoming> MessageReader::read_header(std::size_t& length) {
  std::optional<std::size_t> found;
  std::size_t rest = longest_header;
  for (;;) {
    const std::optional<std::string> line = read_header_line();
    if (!line) return Incoming{Incoming::Kind::End, {}};
    if (line->size() >= rest) return Incoming{Incoming::Kind::Unframed, {}};
    rest -= line->size();
    if (line->empty()) break;
    const HeaderField field = field_of(*line);
    if (field.name != "content-length") continue;
    const std::optional<std::size_t> stated = length_of(field.value);
    if (!stated || (found && *found != *stated)) return Incoming{Incoming::Kind::Unframed, {}};
    found = stated;
  }
  if (!found) return Incoming{Incoming::Kind::Unframed, {}};
  length = *found;
  return std::nullopt;
}

/// Returns a line without its line end, cut after the longest header; nothing at the end of the
/// input.
std::optional<std::string> MessageReader::read_header_line() {
  std::string line;
  for (;;) {
    const int next = in_.get();
    if (next == std::istream::traits_type::eof()) return std::nullopt;
    if (next == '\n') break;
    line += static_cast<char>(next);
    if (line.size() > longest_header) return line;
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

Incoming MessageReader::read_content(std::size_t length) {
  Incoming incoming{Incoming::Kind::Message, {}};
  std::string& text = incoming.text;
  while (text.size() < length) {
    const std::size_t before = text.size();
    text.resize(before + std::min(piece_size, length - before));
    in_.read(text.data() + before, static_cast<std::streamsize>(text.size() - before));
    if (!in_) return {Incoming::Kind::End, {}};
  }
  return incoming;
}

Incoming MessageReader::skip(std::size_t length) {
  std::string piece(piece_size, '\0');
  while (length > 0 && in_) {
    const std::size_t wanted = std::min(length, piece.size());
    in_.read(piece.data(), static_cast<std::streamsize>(wanted));
    length -= wanted;
  }
  return {in_ ? Incoming::Kind::TooLong : Incoming::Kind::End, {}};
}

}  // namespace kelp::input::quill::language_server
