#include "quill-inp/formats/json_reading.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

#include <nlohmann/json.hpp>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using Json = nlohmann::json;

/// Goes through a text and counts how much of it was read. The JSON library tells its position only
/// when it finds an error itself.
class CountedBytes {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  CountedBytes(const char* at, std::size_t& count) : at_(at), count_(&count) {}

  reference operator*() const { return *at_; }
  CountedBytes& operator++() {
    ++at_;
    ++*count_;
    return *this;
  }
  bool operator==(const CountedBytes& other) const { return at_ == other.at_; }
  bool operator!=(const CountedBytes& other) const { return at_ != other.at_; }

 private:
  const char* at_;
  std::size_t* count_;
};

/// Returns the number of the line in which the reader of `text` was after `bytes` of it.
std::size_t line_after(std::string_view text, std::size_t bytes) {
  const std::string_view read = text.substr(0, bytes);
  return 1 + static_cast<std::size_t>(std::count(read.begin(), read.end(), '\n'));
}

/// The messages of the JSON library begin with an identifier in brackets.
std::string without_identifier(const std::string& message) {
  const std::size_t end = message.find("] ");
  return end == std::string::npos ? message : message.substr(end + 2);
}

/// The line is reported separately, so it is removed from the message.
Trouble to_trouble(const Json::exception& error, std::size_t line) {
  const std::string message = without_identifier(error.what());
  const std::string place = "parse error at line " + std::to_string(line) + ", ";
  const bool names_place = message.compare(0, place.size(), place) == 0;
  return Trouble(
      "not JSON: " + (names_place ? "parse error at " + message.substr(place.size()) : message),
      line);
}

JsonScalar number_scalar(double number) {
  return {JsonScalar::Kind::Number, false, number, std::string()};
}

/// Passes on what the JSON library finds. The names of the members are the library's.
class Events {
 public:
  Events(std::string_view text, JsonListener& listener) : text_(text), listener_(listener) {}

  bool null() { return pass_on({}); }
  bool boolean(bool truth) { return pass_on({JsonScalar::Kind::Truth, truth, 0.0, std::string()}); }
  /// The library reads a number as a signed integer only if it has a sign, and loses the sign of
  /// "-0".
  bool number_integer(std::int64_t number) {
    return pass_on(number_scalar(number == 0 ? -0.0 : static_cast<double>(number)));
  }
  bool number_unsigned(std::uint64_t number) {
    return pass_on(number_scalar(static_cast<double>(number)));
  }
  bool number_float(double number, const std::string& /*written*/) {
    return pass_on(number_scalar(number));
  }
  bool string(std::string& text) {
    return pass_on({JsonScalar::Kind::Text, false, 0.0, std::move(text)});
  }
  bool binary(Json::binary_t& /*bytes*/) { return false; }  // not reached: JSON has none

  bool start_object(std::size_t /*size*/) {
    listener_.begin_object();
    return true;
  }
  bool key(const std::string& name) {
    listener_.begin_member(name);
    return true;
  }
  bool end_object() {
    listener_.end_object();
    return true;
  }
  bool start_array(std::size_t /*size*/) {
    listener_.begin_list();
    return true;
  }
  bool end_array() {
    listener_.end_list();
    return true;
  }
  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const Json::exception& error) {
    throw to_trouble(error, line_after(text_, position));
  }

 private:
  bool pass_on(JsonScalar scalar) {
    listener_.take(std::move(scalar));
    return true;
  }

  std::string_view text_;
  JsonListener& listener_;
};

}  // namespace

void read_json(std::string_view text, JsonListener& listener) {
  Events events(text, listener);
  std::size_t count = 0;
  try {
    Json::sax_parse(CountedBytes(text.data(), count),
                    CountedBytes(text.data() + text.size(), count), &events);
  } catch (const Trouble& trouble) {
    if (trouble.line()) throw;
    // The end of a number is found by reading one byte more, which may be a line end.
    throw Trouble(trouble.what(), line_after(text, count - std::min<std::size_t>(count, 1)));
  }
}

}  // namespace kelp::input::quill::tool
