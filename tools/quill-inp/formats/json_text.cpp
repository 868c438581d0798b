#include "quill-inp/formats/json_text.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>
#include <vector>

#include <nlohmann/json.hpp>

#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/hexadecimal.hpp"
#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* bytes_member = "bytes";

std::string to_hexadecimal(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) append_hexadecimal(text, static_cast<unsigned char>(c), 2);
  return text;
}

std::string from_hexadecimal(const std::string& text, const std::string& where) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const std::size_t high = hexadecimal_digits.find(text[i]);
    const std::size_t low =
        i + 1 < text.size() ? hexadecimal_digits.find(text[i + 1]) : std::string_view::npos;
    if (high == std::string_view::npos || low == std::string_view::npos)
      throw Trouble(where + ": expected pairs of hexadecimal digits in lower case");
    bytes += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
  }
  return bytes;
}

struct SpecialNumber {
  std::string_view name;
  double value;
};

constexpr SpecialNumber special_numbers[] = {
    {"inf", std::numeric_limits<double>::infinity()},
    {"-inf", -std::numeric_limits<double>::infinity()},
    {"nan", std::numeric_limits<double>::quiet_NaN()},
    {"-nan", -std::numeric_limits<double>::quiet_NaN()},
};

bool is_same_special(double left, double right) {
  return std::isnan(left) == std::isnan(right) && std::isinf(left) == std::isinf(right) &&
         std::signbit(left) == std::signbit(right);
}

/// Whether the entries of a value begin new lines: those of the document, of its geometry, and of
/// the lists of parts in them.
bool begins_lines(const OrderedJson& value, int depth) {
  if (!value.is_structured() || value.empty()) return false;
  return depth < 2 || (depth == 2 && value.is_array() && value.front().is_object());
}

constexpr int on_one_line = 100;

// A document and its summary are at most five levels deep.
// NOLINTNEXTLINE(misc-no-recursion)
void append(std::string& out, const OrderedJson& value, int depth) {
  if (!value.is_structured()) {
    out += value.dump();
    return;
  }
  const bool is_laid_out = begins_lines(value, depth);
  const std::string indent(is_laid_out ? static_cast<std::size_t>(depth) * 2 : 0, ' ');
  out += value.is_object() ? '{' : '[';
  const char* separator = is_laid_out ? "\n" : "";
  for (const auto& entry : value.items()) {
    out += separator;
    if (is_laid_out) out += indent + "  ";
    if (value.is_object()) out += OrderedJson(entry.key()).dump() + ": ";
    append(out, entry.value(), is_laid_out ? depth + 1 : on_one_line);
    separator = is_laid_out ? ",\n" : ", ";
  }
  if (is_laid_out) out += "\n" + indent;
  out += value.is_object() ? '}' : ']';
}

/// Finds members with the same name in one object. Knows the names in every object being read.
class NameWatch {
 public:
  bool operator()(int /*depth*/, Json::parse_event_t event, const Json& parsed) {
    if (event == Json::parse_event_t::object_start) {
      open_objects_.emplace_back();
    } else if (event == Json::parse_event_t::object_end) {
      open_objects_.pop_back();
    } else if (event == Json::parse_event_t::key) {
      const auto& name = parsed.get_ref<const std::string&>();
      if (!open_objects_.back().insert(name).second)
        throw Trouble("two members '" + name + "' in one JSON object");
    }
    return true;
  }

 private:
  std::vector<std::set<std::string>> open_objects_;
};

/// The JSON library reads a number as a signed integer only if it has a sign, and loses the sign of
/// "-0".
bool is_negative_zero(const Json& value) {
  return value.type() == Json::value_t::number_integer && value.get<std::int64_t>() == 0;
}

/// The messages of the JSON library begin with an identifier in brackets.
std::string without_identifier(const std::string& message) {
  const std::size_t end = message.find("] ");
  return end == std::string::npos ? message : message.substr(end + 2);
}

/// Returns the number of the line in which the reader of `text` was after `bytes` of it.
std::size_t line_after(std::string_view text, std::size_t bytes) {
  const std::string_view read = text.substr(0, bytes);
  return 1 + static_cast<std::size_t>(std::count(read.begin(), read.end(), '\n'));
}

/// The line is reported separately, so it is removed from the message.
Trouble to_trouble(const Json::parse_error& error, std::string_view text) {
  const std::string message = without_identifier(error.what());
  const std::size_t line = line_after(text, error.byte);
  const std::string place = "parse error at line " + std::to_string(line) + ", ";
  const bool names_place = message.compare(0, place.size(), place) == 0;
  return Trouble(
      "not JSON: " + (names_place ? "parse error at " + message.substr(place.size()) : message),
      line);
}

}  // namespace

OrderedJson string_to_json(std::string_view text) {
  if (is_utf8(text)) return std::string(text);
  OrderedJson json = OrderedJson::object();
  json[bytes_member] = to_hexadecimal(text);
  return json;
}

OrderedJson number_to_json(double number) {
  if (std::isfinite(number)) return number;
  for (const SpecialNumber& special : special_numbers) {
    if (is_same_special(special.value, number)) return std::string(special.name);
  }
  return nullptr;  // not reached: the table has every kind of number that is not finite
}

std::string string_from_json(const Json& value, const std::string& where) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_object() && value.size() == 1 && value.contains(bytes_member) &&
      value[bytes_member].is_string())
    return from_hexadecimal(value[bytes_member].get<std::string>(), where);
  throw Trouble(where + R"(: expected a string or {"bytes": "..."})");
}

double number_from_json(const Json& value, const std::string& where) {
  if (is_negative_zero(value)) return -0.0;
  if (value.is_number()) return value.get<double>();
  if (value.is_string()) {
    for (const SpecialNumber& special : special_numbers) {
      if (special.name == value.get_ref<const std::string&>()) return special.value;
    }
  }
  throw Trouble(where + R"(: expected a number, "inf", "-inf", "nan" or "-nan")");
}

std::string to_one_line(const OrderedJson& value) {
  std::string out;
  append(out, value, on_one_line);
  return out;
}

std::string to_lines(const OrderedJson& value) {
  std::string out;
  append(out, value, 0);
  out += '\n';
  return out;
}

Json parse_json(std::string_view text) {
  try {
    return Json::parse(text, NameWatch());
  } catch (const Json::parse_error& error) {
    throw to_trouble(error, text);
  } catch (const Json::exception& error) {
    throw Trouble("not JSON: " + without_identifier(error.what()));
  }
}

}  // namespace kelp::input::quill::tool
