#include "quill-inp/formats/json_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

Json reread(const OrderedJson& json) { return parse_json(to_lines(json)); }

TEST(JsonString, ComesBackWhateverItsBytes) {
  std::string all_bytes;
  for (int byte = 0; byte < 256; ++byte) all_bytes += static_cast<char>(byte);
  for (const std::string& text :
       {std::string(), std::string("opt"), std::string("\"\\/\b\f\n\r\t\x01\x7F"),
        std::string("a\0b", 3), std::string("\xC3\xA4\xF0\x9F\x98\x80"), std::string("\xFF"),
        std::string("\xED\xA0\x80"), std::string("{\"bytes\": \"00\"}"), all_bytes})
    EXPECT_EQ(string_from_json(reread(string_to_json(text)), "x"), text);
}

TEST(JsonString, IsPlainUnlessItIsNotUtf8) {
  EXPECT_EQ(to_one_line(string_to_json("\xC3\xA4")), "\"\xC3\xA4\"");
  EXPECT_EQ(to_one_line(string_to_json("hi\xFF")), R"({"bytes": "6869ff"})");
}

struct BadRow {
  std::string_view name;
  std::string_view json;
  std::string_view complaint;
};

class BadJsonString : public testing::TestWithParam<BadRow> {};

constexpr std::string_view no_string = R"(/a: expected a string or {"bytes": "..."})";
constexpr std::string_view no_digits = "/a: expected pairs of hexadecimal digits in lower case";

const BadRow bad_rows[] = {
    {"Number", "1", no_string},
    {"Null", "null", no_string},
    {"EmptyObject", "{}", no_string},
    {"AnotherMember", R"({"byte": "00"})", no_string},
    {"AMemberTooMany", R"({"bytes": "00", "x": 1})", no_string},
    {"BytesThatAreNotAString", R"({"bytes": 0})", no_string},
    {"HalfAByte", R"({"bytes": "00f"})", no_digits},
    {"UpperCase", R"({"bytes": "0F"})", no_digits},
    {"NoHighDigit", R"({"bytes": "g0"})", no_digits},
    {"NoLowDigit", R"({"bytes": "0g"})", no_digits},
};

TEST_P(BadJsonString, IsRefused) {
  try {
    string_from_json(parse_json(GetParam().json), "/a");
    FAIL() << "no exception";
  } catch (const Trouble& trouble) {
    EXPECT_EQ(std::string_view(trouble.what()), GetParam().complaint);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, BadJsonString, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

std::uint64_t bits_of(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  return bits;
}

double number_of(std::uint64_t bits) {
  double number = 0.0;
  std::memcpy(&number, &bits, sizeof number);
  return number;
}

void expect_to_come_back(double number) {
  EXPECT_EQ(bits_of(number_from_json(reread(number_to_json(number)), "x")), bits_of(number))
      << number;
}

TEST(JsonNumber, ComesBackBitForBit) {
  for (const double number :
       {0.0, -0.0, 1.0, 0.1, -1.0 / 3.0, 1e22, 1e23, 123456789012345680.0, 5e-324,
        std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(),
        std::numeric_limits<double>::min(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
        -std::numeric_limits<double>::quiet_NaN()})
    expect_to_come_back(number);
}

TEST(JsonNumber, OfAnyBitsComesBack) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const double number = number_of(random());
    if (std::isfinite(number)) expect_to_come_back(number);
  }
}

struct ZeroRow {
  std::string_view json;
  double number;
};

constexpr ZeroRow zero_rows[] = {
    {"-0", -0.0},    {"-0.0", -0.0},    {"-0e1", -0.0},
    {"-0E-7", -0.0}, {" -0 ", -0.0},    {"0", 0.0},
    {"0.0", 0.0},    {"0e1", 0.0},      {"-0.5", -0.5},
    {"-1", -1.0},    {"-0.0e0", -0.0},  {"1", 1.0},
    {"-10", -10.0},  {"-1e-999", -0.0}, {"9007199254740993", 9007199254740992.0},
};

TEST(JsonNumber, KeepsTheSignOfZero) {
  for (const ZeroRow& row : zero_rows)
    EXPECT_EQ(bits_of(number_from_json(parse_json(row.json), "x")), bits_of(row.number))
        << row.json;
}

TEST(JsonNumber, KeepsTheSignOfZeroInListsAndObjects) {
  const Json list = parse_json("[-0,0,-0]");
  EXPECT_TRUE(std::signbit(number_from_json(list[0], "x")));
  EXPECT_FALSE(std::signbit(number_from_json(list[1], "x")));
  EXPECT_TRUE(std::signbit(number_from_json(list[2], "x")));
  const Json object = parse_json(R"({"-0": -0, "a\"-0": "\"-0\\", "b": [[-0]]})");
  EXPECT_TRUE(std::signbit(number_from_json(object["-0"], "x")));
  EXPECT_EQ(string_from_json(object["a\"-0"], "x"), "\"-0\\");
  EXPECT_TRUE(std::signbit(number_from_json(object["b"][0][0], "x")));
}

TEST(JsonNumber, WithALeadingZeroIsRefused) {
  for (const char* text : {"-01", "-00", "00", "[-01]", "-0x", "- 0", "-"})
    EXPECT_THROW(parse_json(text), Trouble) << text;
}

TEST(JsonNumber, HasANameWhereJsonHasNoNumber) {
  EXPECT_EQ(to_one_line(number_to_json(std::numeric_limits<double>::infinity())), "\"inf\"");
  EXPECT_EQ(to_one_line(number_to_json(-std::numeric_limits<double>::quiet_NaN())), "\"-nan\"");
  EXPECT_THROW(number_from_json(parse_json("\"Infinity\""), "x"), Trouble);
  EXPECT_THROW(number_from_json(parse_json("true"), "x"), Trouble);
  EXPECT_THROW(number_from_json(parse_json("null"), "x"), Trouble);
  EXPECT_EQ(number_from_json(parse_json("3"), "x"), 3.0);
}

/// Returns what is wrong with a text, after the line number if there is one.
std::string complaint(std::string_view text) {
  try {
    parse_json(text);
  } catch (const Trouble& trouble) {
    return (trouble.line() ? std::to_string(*trouble.line()) + ": " : "") + trouble.what();
  }
  return {};
}

TEST(JsonText, ThatIsNoneIsRefusedWithThePlace) {
  EXPECT_EQ(complaint("{\n  \"a\": 1,\n}"),
            "3: not JSON: parse error at column 1: syntax error while parsing object key - "
            "unexpected '}'; expected string literal");
  EXPECT_EQ(complaint("1e999"), "not JSON: number overflow parsing '1e999'");
  EXPECT_NE(complaint(""), "");
  EXPECT_NE(complaint("\"\xFF\""), "");
  EXPECT_NE(complaint("{} {}"), "");
}

TEST(JsonText, WithTwoMembersOfOneNameIsRefused) {
  EXPECT_EQ(complaint(R"({"a": 1, "b": 2, "a": 3})"), "two members 'a' in one JSON object");
  EXPECT_EQ(complaint(R"({"a": {"b": 1, "b": 1}})"), "two members 'b' in one JSON object");
  EXPECT_EQ(complaint(R"({"a": {"a": 1}, "b": [{"a": 1}, {"a": 1}]})"), "");
}

TEST(JsonText, ThatIsDeepIsReadOrRefusedButNotFatal) {
  const std::string deep = std::string(200000, '[') + std::string(200000, ']');
  EXPECT_NO_THROW(parse_json(deep));
}

TEST(JsonText, BeginsALineForEachPartOfADocument) {
  OrderedJson json = OrderedJson::object();
  json["commands"] = OrderedJson::array();
  json["commands"].push_back({{"name", "opt"}, {"kind", "flag"}});
  json["geometry"] = {{"kind", "atoms"},
                      {"atoms", {{{"symbol", "He"}, {"x", 0.0}}, {{"symbol", "He"}, {"x", 1.0}}}},
                      {"xyz_files", {"a", "b"}}};
  json["post_commands"] = OrderedJson::array();
  EXPECT_EQ(to_lines(json),
            "{\n"
            "  \"commands\": [\n"
            "    {\"name\": \"opt\", \"kind\": \"flag\"}\n"
            "  ],\n"
            "  \"geometry\": {\n"
            "    \"kind\": \"atoms\",\n"
            "    \"atoms\": [\n"
            "      {\"symbol\": \"He\", \"x\": 0.0},\n"
            "      {\"symbol\": \"He\", \"x\": 1.0}\n"
            "    ],\n"
            "    \"xyz_files\": [\"a\", \"b\"]\n"
            "  },\n"
            "  \"post_commands\": []\n"
            "}\n");
  EXPECT_EQ(to_one_line(json["commands"]), R"([{"name": "opt", "kind": "flag"}])");
  EXPECT_EQ(to_lines("x\ny"), "\"x\\ny\"\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
