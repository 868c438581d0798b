// The checks notice what they are there to notice: each is run on a library of which one answer is
// wrong. What a result of reading alone can show is in violations_test.cpp.

#include "properties/spoiled_library.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "properties/editing.hpp"
#include "properties/everything.hpp"
#include "properties/holds.hpp"
#include "properties/lookup.hpp"
#include "properties/reading.hpp"
#include "properties/text_functions.hpp"
#include "properties/writing.hpp"

namespace kelp::input::quill {
namespace {

struct Row {
  std::string_view name;
  std::function<void(Spoils&)> spoil;
  std::function<void()> check;
  std::string_view property;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

bool contains(std::string_view text, std::string_view piece) {
  return text.find(piece) != std::string_view::npos;
}

QuillInput document() {
  return {{{"opt"}, {"Opt", HeaderCommandKind::Flag, "not in force"}},
          {GeometryKind::Atoms, 0, 1, true, {{"H", 0.5, 0.25, -0.125}}, {}},
          {PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10}}};
}

QuillInput document_with_a_blank() { return {{{"a "}}}; }

void check_layout() { check_that_layout_does_not_matter("#opt(\n0 1\nH 0 0 0\nB 1 x\n"); }

/// What makes a reader drop the atoms of every text with a piece.
std::function<void(Spoils&)> minds(std::string_view piece) {
  return [piece](Spoils& s) {
    s.reading = [piece](ParseResult& result, std::string_view text) {
      if (contains(text, piece)) result.input.geometry.atoms.clear();
    };
  };
}

std::function<void(Spoils&)> writes_otherwise_from_call(int number) {
  return [number](Spoils& s) {
    s.writing = [number, calls = 0](std::string& text, const QuillInput&) mutable {
      if (++calls >= number) text += "x\n";
    };
  };
}

/// What lets a reader find another number where 0.5 or 1.5 was written.
std::function<void(Spoils&)> reads_beside(double distance) {
  return [distance](Spoils& s) {
    s.reading = [distance](ParseResult& result, std::string_view) {
      result.input.geometry.atoms.at(0).x += distance;
    };
  };
}

void add_a_blank(std::string& text) { text += ' '; }

const Row rows_of_documents[] = {
    {"AReaderThatMindsCarriageReturns", minds("\r"), check_layout, "CRLF means what LF means"},
    {"AReaderThatMindsOneMoreLineEnd", minds("x\n\n"), check_layout,
     "one more line end means nothing"},
    {"AReaderThatMindsBlanksAroundLines", minds("\t \n"), check_layout,
     "blanks around lines mean nothing"},
    {"AReaderThatMindsBlankLines", minds("\n \t\n"), check_layout, "blank lines mean nothing"},
    {"AReaderThatMiscountsBlankLines",
     [](Spoils& s) {
       s.reading = [](ParseResult& result, std::string_view text) {
         if (contains(text, "\n \t\n")) result.warnings.front().replace(0, 6, "Line 2");
       };
     },
     check_layout, "blank lines mean nothing"},

    {"AWriterThatChangesItsMind", writes_otherwise_from_call(2), [] { check_document(document()); },
     "a copy gives the same text"},
    {"AnEditorThatWritesOtherwise",
     [](Spoils& s) { s.writing_by_an_editor = [](auto& text, auto&) { add_a_blank(text); }; },
     [] { check_document(document()); }, "an editor gives the same text"},
    {"ABuilderThatWritesOtherwise",
     [](Spoils& s) { s.writing_by_a_builder = [](auto& text, auto&) { add_a_blank(text); }; },
     [] { check_document(document()); }, "a builder gives the same text"},
    {"ACommandThatIsWrittenOtherwiseAlone",
     [](Spoils& s) { s.writing_a_command = [](auto& text, auto&) { add_a_blank(text); }; },
     [] { check_document(document()); }, "the text is that of the pieces"},
    {"AWriterThatMindsWhatIsNotInForce",
     [](Spoils& s) {
       s.writing = [](std::string& text, const QuillInput& written) {
         if (!written.commands.at(1).value) text += "x\n";
       };
     },
     [] { check_document(document()); }, "what is not in force is not written"},
    {"AWriterThatIsWrongThroughout", writes_otherwise_from_call(1),
     [] { check_against_obvious_writer(document()); }, "the text is that of the obvious writer"},

    {"ACoordinateBesideWhatWasWritten", reads_beside(1e-6), [] { check_round_trip(document()); },
     "what is written reads back"},
    {"AScanValueBesideWhatWasWritten",
     [](Spoils& s) {
       s.reading = [](ParseResult& result, std::string_view) {
         result.input.post_commands.at(0).scan_value = 1.50001;
       };
     },
     [] { check_round_trip(document()); }, "what is written reads back"},
    {"AnExceptionThatReadsBack",
     [](Spoils& s) {
       s.reading = [](ParseResult& result, std::string_view) {
         result.input.commands.at(0).name += ' ';
       };
     },
     [] { check_round_trip(document_with_a_blank()); }, "only what reads back is no exception"},
    {"AWriterThatWritesWhatWasReadOtherwise", writes_otherwise_from_call(2),
     [] { check_round_trip(document()); }, "what is read back is written again as the same bytes"},

    {"AFindThatMissesTheSecond",
     [](Spoils& s) {
       s.finding = [](auto& command, auto, auto occurrence) {
         if (occurrence == 1) command = nullptr;
       };
     },
     [] { check_every_lookup(document()); }, "find_command() finds every match"},
    {"AFindThatMissesWhatMayChange",
     [](Spoils& s) { s.finding_to_change = [](auto& command, auto, auto) { command = nullptr; }; },
     [] { check_every_lookup(document()); },
     "find_command() finds the same in a document that is not const"},
    {"AFindThatFindsTooMuch",
     [](Spoils& s) {
       s.finding = [](auto& command, auto, auto occurrence) {
         static const HeaderCommand none;
         if (occurrence > 1) command = &none;
       };
     },
     [] { check_every_lookup(document()); }, "find_command() finds nothing else"},
    {"ACommandThatIsNotThere", [](Spoils& s) { s.having = [](bool& has, auto) { has = true; }; },
     [] { check_every_lookup(document()); }, "has_command() is right"},
    {"ANameLess", [](Spoils& s) { s.listing = [](auto& names, auto&) { names.pop_back(); }; },
     [] { check_every_lookup(document()); }, "command_names() gives the stored names"},
};

const Row rows_of_text[] = {
    {"ABlankThatStays",
     [](Spoils& s) { s.trimming = [](auto& trimmed, auto text) { trimmed = text; }; },
     [] { check_text_functions("\v"); }, "trim() takes outer blanks away"},
    {"ALetterThatIsNotLowered",
     [](Spoils& s) { s.lowering = [](auto& lower, auto text) { lower = text; }; },
     [] { check_text_functions("Z"); }, "to_lower_copy() folds letters"},
    {"ALetterThatIsNotRaised",
     [](Spoils& s) { s.raising = [](auto& upper, auto text) { upper = text; }; },
     [] { check_text_functions("z"); }, "to_upper_copy() folds letters"},
    {"AWordLess", [](Spoils& s) { s.cutting_words = [](auto& words, auto) { words.pop_back(); }; },
     [] { check_text_functions("a b"); }, "split_whitespace() gives the words"},
    {"ALineMore",
     [](Spoils& s) { s.cutting_lines = [](auto& lines, auto) { lines.push_back(""); }; },
     [] { check_text_functions("a\n"); }, "split_lines() gives the lines"},
    {"AnIntegerThatDoesNotFit",
     [](Spoils& s) { s.reading_an_integer = [](bool& is_read, auto, int&) { is_read = true; }; },
     [] { check_text_functions("2147483648"); }, "try_parse_int() knows integers"},
    {"ARefusedIntegerThatLeavesATrace",
     [](Spoils& s) { s.reading_an_integer = [](bool&, auto, int& value) { value = 0; }; },
     [] { check_text_functions("1x"); }, "try_parse_int() gives their value"},
    {"ANumberOfAnotherForm",
     [](Spoils& s) { s.reading_a_double = [](bool& is_read, auto, double&) { is_read = true; }; },
     [] { check_text_functions("0x1"); }, "try_parse_double() knows numbers"},
    {"TheDoubleBeside",
     [](Spoils& s) {
       s.reading_a_double = [](bool&, auto, double& value) { value = std::nextafter(value, 1); };
     },
     [] { check_text_functions("0.1"); }, "try_parse_double() gives the nearest double"},
    {"AZeroThatLosesItsSign",
     [](Spoils& s) { s.reading_a_double = [](bool&, auto, double& value) { value = 0; }; },
     [] { check_text_functions("-0"); }, "try_parse_double() gives the nearest double"},
    {"ASymbolAsItStands",
     [](Spoils& s) { s.spelling_a_symbol = [](auto& symbol, auto text) { symbol = text; }; },
     [] { check_text_functions("FE"); }, "normalize_symbol() sets the letter case"},
    {"AnElementMore",
     [](Spoils& s) { s.numbering_a_symbol = [](auto& number, auto) { number = 119; }; },
     [] { check_text_functions("Xx"); }, "atomic_number_from_symbol() knows the elements"},
};

/// Whether a view is of a piece of one of the names that the document stores.
bool is_view_of_a_name(std::string_view view, const QuillInput& stored) {
  const std::less_equal<> is_not_behind;
  const auto& commands = stored.commands;
  return std::any_of(commands.begin(), commands.end(), [&](const HeaderCommand& command) {
    return is_not_behind(command.name.data(), view.data()) &&
           is_not_behind(view.data() + view.size(), command.name.data() + command.name.size());
  });
}

/// Stops at the first that does not do what it should.
void check_many_edits() {
  std::mt19937 random(20240524);
  for (int i = 0; i < 500; ++i) {
    std::string bytes(400, '\0');
    for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(random()));
    check_edits(bytes);
  }
}

const Row rows_of_edits[] = {
    {"AnEditorThatDoesMoreThanItIsAsked",
     [](Spoils& s) { s.setting_a_flag = [](auto& editor, auto) { editor.set_model("m"); }; },
     check_many_edits, "the editor does what its operations say"},
    {"AnEditorThatMindsViewsOfItsOwnDocument",
     [](Spoils& s) {
       s.setting_a_flag = [](InputEditor& editor, std::string_view name) {
         if (is_view_of_a_name(name, editor.document())) editor.add_bond_constraint(1, 2);
       };
     },
     check_many_edits, "the editor does what its operations say"},
    {"ABuilderThatDoesMoreThanItsEditor",
     [](Spoils& s) {
       s.building_a_constraint = [](auto& builder, int) { builder.add_bond_constraint(1, 2); };
     },
     check_many_edits, "the builder does what the editor does"},
};

class SpoiledLibrary : public testing::TestWithParam<Row> {
 protected:
  void TearDown() override { spoils() = Spoils(); }
};

TEST_P(SpoiledLibrary, IsNoticed) {
  ASSERT_TRUE(holds(GetParam().check));
  GetParam().spoil(spoils());
  const testing::AssertionResult outcome = holds(GetParam().check);
  ASSERT_FALSE(outcome);
  EXPECT_TRUE(contains(outcome.message(), GetParam().property)) << outcome.message();
}

INSTANTIATE_TEST_SUITE_P(Documents, SpoiledLibrary, testing::ValuesIn(rows_of_documents),
                         [](const auto& row) { return std::string(row.param.name); });
INSTANTIATE_TEST_SUITE_P(Edits, SpoiledLibrary, testing::ValuesIn(rows_of_edits),
                         [](const auto& row) { return std::string(row.param.name); });
INSTANTIATE_TEST_SUITE_P(Text, SpoiledLibrary, testing::ValuesIn(rows_of_text),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill
