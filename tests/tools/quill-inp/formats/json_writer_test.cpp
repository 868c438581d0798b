#include "quill-inp/formats/json_writer.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

namespace kelp::input::quill::tool {
namespace {

using Layout = JsonWriter::Layout;
using Pieces = std::vector<std::string>;

Pieces pieces_of(const std::function<void(JsonWriter&)>& write) {
  Pieces pieces;
  JsonWriter json([&](std::string_view piece) { pieces.emplace_back(piece); });
  write(json);
  json.finish();
  return pieces;
}

std::string text_of(const std::function<void(JsonWriter&)>& write) {
  std::string text;
  for (const std::string& piece : pieces_of(write)) text += piece;
  return text;
}

std::string text_of(std::string_view text) {
  return text_of([&](JsonWriter& json) { json.text(text); });
}

std::string text_of(double number) {
  return text_of([&](JsonWriter& json) { json.number(number); });
}

struct TextRow {
  std::string_view name;
  std::string_view text;
  std::string_view json;
};

class JsonWriterOfAText : public testing::TestWithParam<TextRow> {};

constexpr TextRow text_rows[] = {
    {"Empty", "", R"("")"},
    {"Plain", "opt", R"("opt")"},
    {"ShortEscapes", "\"\\/\b\f\n\r\t", R"("\"\\/\b\f\n\r\t")"},
    {"ControlCharacters", {"\x01\x1f\x00 ", 4}, R"("\u0001\u001f\u0000 ")"},
    {"OtherCharacters", "\xC3\xA4\xF0\x9F\x98\x80\x7F", "\"\xC3\xA4\xF0\x9F\x98\x80\x7F\""},
    {"Bytes", "hi\xFF", R"({"bytes": "6869ff"})"},
    {"BytesOfASurrogate", "\xED\xA0\x80", R"({"bytes": "eda080"})"},
};

TEST_P(JsonWriterOfAText, Writes) {
  EXPECT_EQ(text_of(GetParam().text), std::string(GetParam().json) + "\n");
}

INSTANTIATE_TEST_SUITE_P(Table, JsonWriterOfAText, testing::ValuesIn(text_rows),
                         [](const auto& row) { return std::string(row.param.name); });

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct NumberRow {
  std::string_view json;
  double number;
};

constexpr NumberRow number_rows[] = {
    {"0.0", 0.0},
    {"-0.0", -0.0},
    {"1.0", 1.0},
    {"-0.729", -0.729},
    {"2.609047", 2.609047},
    {"0.0001", 1e-4},
    {"9.999e-05", 9.999e-5},
    {"-1e-300", -1e-300},
    {"5e-324", 5e-324},
    {"999999999999999.9", 999999999999999.9},
    {"1e+15", 1e15},
    {"-1.5e+20", -1.5e20},
    {"100000.0", 1e5},
    {"1.7976931348623157e+308", std::numeric_limits<double>::max()},
    {"\"inf\"", infinity},
    {"\"-inf\"", -infinity},
    {"\"nan\"", nan},
    {"\"-nan\"", -nan},
};

TEST(JsonWriter, WritesNumbersWithTheFewestDigitsThatReadBack) {
  for (const NumberRow& row : number_rows)
    EXPECT_EQ(text_of(row.number), std::string(row.json) + "\n");
}

TEST(JsonWriter, WritesEveryFiniteNumberSoThatItReadsBackBitForBit) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t bits = random();
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    if (!std::isfinite(number)) continue;
    const auto read = nlohmann::json::parse(text_of(number));
    EXPECT_TRUE(read.is_number_float()) << read;
    EXPECT_EQ(read.get<double>(), number);
    EXPECT_EQ(std::signbit(read.get<double>()), std::signbit(number));
  }
}

TEST(JsonWriter, BeginsALineForEachEntryWhereItIsToldTo) {
  const std::string text = text_of([](JsonWriter& json) {
    json.begin_object(Layout::Lines);
    json.member("a").begin_list(Layout::Lines);
    json.begin_object(Layout::OneLine);
    json.member("b").integer(-1);
    json.member("c").truth(true);
    json.end_object();
    json.begin_list(Layout::OneLine);
    json.null();
    json.truth(false);
    json.end_list();
    json.end_list();
    json.member("d").begin_object(Layout::Lines);
    json.end_object();
    json.member("e").begin_list(Layout::Lines);
    json.end_list();
    json.end_object();
  });
  EXPECT_EQ(text,
            "{\n"
            "  \"a\": [\n"
            "    {\"b\": -1, \"c\": true},\n"
            "    [null, false]\n"
            "  ],\n"
            "  \"d\": {},\n"
            "  \"e\": []\n"
            "}\n");
}

TEST(JsonWriter, PassesALongTextOnInPiecesOfWholeCharacters) {
  const std::string character = "\xF0\x9F\x98\x80";
  std::string entry;
  for (int i = 0; i < 25; ++i) entry += character;
  constexpr std::size_t count = 2000;
  const Pieces pieces = pieces_of([&](JsonWriter& json) {
    json.begin_list(Layout::OneLine);
    for (std::size_t i = 0; i < count; ++i) json.text(entry);
    json.end_list();
  });
  EXPECT_GT(pieces.size(), 2U);
  std::string whole;
  for (const std::string& piece : pieces) {
    EXPECT_LE(piece.size(), 65536U);
    EXPECT_NO_THROW(nlohmann::json('"' + piece + '"').dump());
    whole += piece;
  }
  EXPECT_EQ(nlohmann::json::parse(whole), std::vector<std::string>(count, entry));
}

TEST(JsonWriter, PassesATextOnThatIsLongerThanAnyPiece) {
  const std::string text(1000000, 'x');
  EXPECT_EQ(text_of(text), '"' + text + "\"\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
