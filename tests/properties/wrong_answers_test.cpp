// The checks notice what they are there to notice: each is given one wrong answer. What a result of
// reading alone can show is in violations_test.cpp.

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "properties/editing.hpp"
#include "properties/holds.hpp"
#include "properties/lookup.hpp"
#include "properties/reading.hpp"
#include "properties/text_functions.hpp"
#include "properties/writing.hpp"

namespace kelp::input::quill {
namespace {

struct Row {
  std::string_view name;
  std::function<void()> check;
  std::string_view property;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class AWrongAnswer : public testing::TestWithParam<Row> {};

TEST_P(AWrongAnswer, IsNoticed) {
  const testing::AssertionResult outcome = holds(GetParam().check);
  ASSERT_FALSE(outcome);
  EXPECT_NE(std::string_view(outcome.message()).find(GetParam().property), std::string_view::npos)
      << outcome.message();
}

std::string name_of(const testing::TestParamInfo<Row>& row) { return std::string(row.param.name); }

QuillInput document() {
  return {{{"opt"}, {"Opt"}},
          {GeometryKind::Atoms, 0, 1, true, {{"H", 0.5, 0.25, -0.125}}, {}},
          {PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10}}};
}

QuillInput with_a_name(std::size_t place, std::string_view name) {
  QuillInput changed = document();
  changed.commands.at(place).name = name;
  return changed;
}

/// Reads a text without its atoms where it has the piece.
ParseResult read_minding(std::string_view piece, std::string_view text) {
  ParseResult result = parse_string(text);
  if (text.find(piece) != std::string_view::npos) result.input.geometry.atoms.clear();
  return result;
}

void check_layout_of(Reader* read) {
  check_that_layout_does_not_matter("#opt(\n0 1\nH 0 0 0\nB 1 x\n", read);
}

const Row of_a_reader[] = {
    {"MindingCarriageReturns",
     [] { check_layout_of([](std::string_view text) { return read_minding("\r", text); }); },
     "CRLF means what LF means"},
    {"MindingOneMoreLineEnd",
     [] { check_layout_of([](std::string_view text) { return read_minding("x\n\n", text); }); },
     "one more line end means nothing"},
    {"MindingBlanksAroundLines",
     [] { check_layout_of([](std::string_view text) { return read_minding("\t \n", text); }); },
     "blanks around lines mean nothing"},
    {"MindingBlankLines",
     [] { check_layout_of([](std::string_view text) { return read_minding("\n \t\n", text); }); },
     "blank lines mean nothing"},
    {"MiscountingBlankLines",
     [] {
       check_layout_of([](std::string_view text) {
         ParseResult result = parse_string(text);
         if (text.front() == '\n') result.warnings.front().replace(0, 6, "Line 2");
         return result;
       });
     },
     "blank lines mean nothing"},
    {"FindingACoordinateBesideTheOneWritten",
     [] {
       check_round_trip(document(), [](std::string_view text) {
         ParseResult result = parse_string(text);
         result.input.geometry.atoms.at(0).x += 1e-6;
         return result;
       });
     },
     "what is written reads back"},
    {"FindingAScanValueBesideTheOneWritten",
     [] {
       check_round_trip(document(), [](std::string_view text) {
         ParseResult result = parse_string(text);
         result.input.post_commands.at(0).scan_value = 1.50001;
         return result;
       });
     },
     "what is written reads back"},
    {"ReadingBackWhatCannotBe",
     [] {
       check_round_trip({{{"a "}}}, [](std::string_view text) {
         ParseResult result = parse_string(text);
         result.input.commands.at(0).name += ' ';
         return result;
       });
     },
     "only what does not read back is an exception"},
};

const Row of_a_writer[] = {
    {"WritingTheSameDocumentInTwoWays",
     [] { check_writing(document(), document().to_string() + " "); }, "a copy gives the same text"},
    {"WritingOneLineMore",
     [] { check_against_obvious_writer(document(), document().to_string() + "x\n"); },
     "the text is that of the obvious writer"},
};

const Row of_a_lookup[] = {
    {"FindingLess", [] { check_every_lookup(with_a_name(1, "freq"), document()); },
     "command_names() gives the stored names"},
    {"FindingNothing",
     [] {
       QuillInput asked = with_a_name(1, "freq");
       check_lookup(asked, document(), "freq");
     },
     "has_command() is right"},
    {"FindingTheWrongOne",
     [] {
       QuillInput asked = with_a_name(0, "freq");
       check_lookup(asked, document(), "opt");
     },
     "find_command() finds every match"},
    {"FindingTooMuch",
     [] {
       QuillInput asked = document();
       check_lookup(asked, with_a_name(1, "freq"), "opt");
     },
     "find_command() finds nothing else"},
};

void check_text_with(std::string_view text, void (*spoil)(TextFunctions&)) {
  ASSERT_TRUE(holds([&] { check_text_functions(text); }));
  TextFunctions functions;
  spoil(functions);
  check_text_functions(text, functions);
}

std::string as_it_is(std::string_view text) { return std::string(text); }

const Row of_a_text_function[] = {
    {"ABlankThatStays", [] { check_text_with("\v", [](TextFunctions& f) { f.trim = as_it_is; }); },
     "trim() takes outer blanks away"},
    {"ALetterThatIsNotLowered",
     [] { check_text_with("Z", [](TextFunctions& f) { f.to_lower_copy = as_it_is; }); },
     "to_lower_copy() folds letters"},
    {"ALetterThatIsNotRaised",
     [] { check_text_with("z", [](TextFunctions& f) { f.to_upper_copy = as_it_is; }); },
     "to_upper_copy() folds letters"},
    {"AWordLess",
     [] {
       check_text_with("a b", [](TextFunctions& f) {
         f.split_whitespace = [](std::string_view) { return std::vector<std::string>{"a"}; };
       });
     },
     "split_whitespace() gives the words"},
    {"ALineMore",
     [] {
       check_text_with("a\n", [](TextFunctions& f) {
         f.split_lines = [](std::string_view) { return std::vector<std::string>{"a", ""}; };
       });
     },
     "split_lines() gives the lines"},
    {"AnIntegerThatDoesNotFit",
     [] {
       check_text_with("2147483648", [](TextFunctions& f) {
         f.try_parse_int = [](std::string_view, int&) { return true; };
       });
     },
     "try_parse_int() knows integers"},
    {"ARefusedIntegerThatLeavesATrace",
     [] {
       check_text_with("1x", [](TextFunctions& f) {
         f.try_parse_int = [](std::string_view, int& value) {
           value = 0;
           return false;
         };
       });
     },
     "try_parse_int() gives their value"},
    {"ANumberOfAnotherForm",
     [] {
       check_text_with("0x1", [](TextFunctions& f) {
         f.try_parse_double = [](std::string_view, double&) { return true; };
       });
     },
     "try_parse_double() knows numbers"},
    {"TheDoubleBeside",
     [] {
       check_text_with("0.1", [](TextFunctions& f) {
         f.try_parse_double = [](std::string_view, double& value) {
           value = std::nextafter(0.1, 1);
           return true;
         };
       });
     },
     "try_parse_double() gives the nearest double"},
    {"AZeroThatLosesItsSign",
     [] {
       check_text_with("-0", [](TextFunctions& f) {
         f.try_parse_double = [](std::string_view, double& value) {
           value = 0;
           return true;
         };
       });
     },
     "try_parse_double() gives the nearest double"},
    {"ASymbolAsItIs",
     [] { check_text_with("FE", [](TextFunctions& f) { f.normalize_symbol = as_it_is; }); },
     "normalize_symbol() sets the letter case"},
    {"AnElementMore",
     [] {
       check_text_with("Xx", [](TextFunctions& f) {
         f.atomic_number_from_symbol = [](std::string_view) { return std::optional<int>(119); };
       });
     },
     "atomic_number_from_symbol() knows the elements"},
};

void do_nothing_to(QuillInput&) {}

EditOperation edit_that_does_what_nobody_asked() {
  return change([](InputEditor& editor) { editor.set_flag("a"); }, do_nothing_to,
                [](InputBuilder& builder) { builder.set_flag("a"); });
}

const Row of_an_edit[] = {
    {"AnEditorThatDoesMoreThanItIsAsked",
     [] {
       InputEditor editor{QuillInput()};
       QuillInput expected;
       check_operation(edit_that_does_what_nobody_asked(), editor, expected, "");
     },
     "the editor does what its operations say"},
    {"ARemovalThatDoesNotTellItsSuccess",
     [] {
       InputEditor editor{QuillInput()};
       QuillInput expected;
       EditOperation silent = change([](InputEditor&) {}, do_nothing_to);
       silent.edit = [](InputEditor&) { return false; };
       check_operation(silent, editor, expected, "");
     },
     "a removal tells its success"},
    {"ABuilderThatDoesMoreThanItsEditor",
     [] {
       InputBuilder builder;
       check_building(edit_that_does_what_nobody_asked(), builder, QuillInput(), "");
     },
     "the builder does what the editor does"},
};

INSTANTIATE_TEST_SUITE_P(OfAReader, AWrongAnswer, testing::ValuesIn(of_a_reader), name_of);
INSTANTIATE_TEST_SUITE_P(OfAWriter, AWrongAnswer, testing::ValuesIn(of_a_writer), name_of);
INSTANTIATE_TEST_SUITE_P(OfALookup, AWrongAnswer, testing::ValuesIn(of_a_lookup), name_of);
INSTANTIATE_TEST_SUITE_P(OfATextFunction, AWrongAnswer, testing::ValuesIn(of_a_text_function),
                         name_of);
INSTANTIATE_TEST_SUITE_P(OfAnEdit, AWrongAnswer, testing::ValuesIn(of_an_edit), name_of);

}  // namespace
}  // namespace kelp::input::quill
