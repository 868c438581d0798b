#include "quill-inp/formats/json_reading.hpp"

#include <gtest/gtest.h>

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

/// Takes down what it is told, and refuses the text "bad".
class Notes : public JsonListener {
 public:
  void begin_object() override { text_ += "{ "; }
  void begin_member(const std::string& name) override { text_ += name + ": "; }
  void end_object() override { text_ += "} "; }
  void begin_list() override { text_ += "[ "; }
  void end_list() override { text_ += "] "; }
  void take(JsonScalar scalar) override {
    switch (scalar.kind) {
      case JsonScalar::Kind::Null:
        text_ += "null ";
        return;
      case JsonScalar::Kind::Truth:
        text_ += scalar.truth ? "true " : "false ";
        return;
      case JsonScalar::Kind::Number:
        append(scalar.number);
        return;
      case JsonScalar::Kind::Text:
        break;
    }
    if (scalar.text == "bad") throw Trouble("refused");
    text_ += "'" + scalar.text + "' ";
  }

  const std::string& text() const { return text_; }

 private:
  void append(double number) {
    if (number == 7.0) throw Trouble("refused");
    char digits[32];
    text_.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
    text_ += ' ';
  }

  std::string text_;
};

std::string notes_of(std::string_view text) {
  Notes notes;
  read_json(text, notes);
  return notes.text();
}

/// Returns what is wrong with a text, after the line number.
std::string complaint(std::string_view text) {
  try {
    return notes_of(text);
  } catch (const Trouble& trouble) {
    return (trouble.line() ? std::to_string(*trouble.line()) + ": " : "") + trouble.what();
  }
}

TEST(JsonReading, TellsThePiecesInTheirOrder) {
  EXPECT_EQ(notes_of(R"({"a": [1, -2, 0.5, "x\ny"], "b": {"c": null, "d": true}, "e": false})"),
            "{ a: [ 1 -2 0.5 'x\ny' ] b: { c: null d: true } e: false } ");
}

struct ZeroRow {
  std::string_view json;
  std::string_view number;
};

constexpr ZeroRow zero_rows[] = {
    {"-0", "-0 "},
    {"-0.0", "-0 "},
    {"-0e1", "-0 "},
    {"-0E-7", "-0 "},
    {" -0 ", "-0 "},
    {"0", "0 "},
    {"0.0", "0 "},
    {"0e1", "0 "},
    {"-0.5", "-0.5 "},
    {"-1", "-1 "},
    {"-0.0e0", "-0 "},
    {"1", "1 "},
    {"-10", "-10 "},
    {"-1e-999", "-0 "},
    {"[-0,0,-0]", "[ -0 0 -0 ] "},
    {"9007199254740993", "9007199254740992 "},
};

TEST(JsonReading, KeepsTheSignOfZero) {
  for (const ZeroRow& row : zero_rows) EXPECT_EQ(notes_of(row.json), row.number) << row.json;
}

TEST(JsonReading, RefusesANumberWithALeadingZero) {
  for (const char* text : {"-01", "-00", "00", "[-01]", "-0x", "- 0", "-"})
    EXPECT_THROW(notes_of(text), Trouble) << text;
}

TEST(JsonReading, RefusesATextThatIsNotJsonWithThePlace) {
  EXPECT_EQ(complaint("{\n  \"a\": 1,\n}"),
            "3: not JSON: parse error at column 1: syntax error while parsing object key - "
            "unexpected '}'; expected string literal");
  EXPECT_EQ(complaint("\n1e999\n"), "2: not JSON: number overflow parsing '1e999'");
  for (const char* text : {"", "\"\xFF\"", "{} {}", "[1", "nul"})
    EXPECT_THROW(notes_of(text), Trouble) << text;
}

TEST(JsonReading, NamesTheLineOfWhatTheListenerRefuses) {
  EXPECT_EQ(complaint("\"bad\""), "1: refused");
  EXPECT_EQ(complaint("[\n\"bad\"\n]"), "2: refused");
  EXPECT_EQ(complaint("[1,\n\n\"bad\"]"), "3: refused");
}

TEST(JsonReading, NamesTheLineOfANumberAtTheEndOfItsLine) {
  EXPECT_EQ(complaint("7"), "1: refused");
  EXPECT_EQ(complaint("[\n7\n]"), "2: refused");
  EXPECT_EQ(complaint("[\n7]\n"), "2: refused");
  EXPECT_EQ(complaint("\n7"), "2: refused");
}

TEST(JsonReading, ReadsATextThatIsDeep) {
  constexpr std::size_t depth = 200000;
  const std::string deep = std::string(depth, '[') + std::string(depth, ']');
  EXPECT_EQ(notes_of(deep).size(), 4 * depth);
}

}  // namespace
}  // namespace kelp::input::quill::tool
