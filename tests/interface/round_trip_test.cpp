// Documents that are written and read again.

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

TEST(RoundTrip, OfOneJobWithAllItsSections) {
  const std::string text =
      "#opt\n"
      "#model = m1\n"
      "#scan(steps=10, relaxed)\n"
      "\n"
      "0 1\n"
      "O        0.000000      0.000000      0.117300\n"
      "H        0.000000      0.757200     -0.469200\n"
      "\n"
      "B 1 2\n"
      "S 1 2 1.5 10\n"
      "POST out.dat\n";
  const QuillInput document(
      {flag("opt"), assignment("model", "m1"), list("scan", {{"steps", "10"}, {"relaxed"}})},
      charged(0, 1, atoms({{"O", 0.0, 0.0, 0.1173}, {"H", 0.0, 0.7572, -0.4692}})),
      {constraint(Kind::BondConstraint, {1, 2}, "B 1 2"), scan({1, 2}, 1.5, 10, "S 1 2 1.5 10"),
       post_file("out.dat", "POST out.dat")});
  EXPECT_EQ(document.to_string(), text);
  EXPECT_EQ(parse_string(text), read_as(document));
}

/// A document and the diagnostics of its text.
struct Row {
  std::string name;
  QuillInput document;
  std::vector<std::string> warnings = {};
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << testing::PrintToString(row.document.to_string());
}

class RoundTrip : public testing::TestWithParam<Row> {};

TEST_P(RoundTrip, GivesTheSameDocument) {
  const std::string text = GetParam().document.to_string();
  const ParseResult result = parse_string(text);
  EXPECT_EQ(result, read_as(GetParam().document, GetParam().warnings));
  EXPECT_EQ(result.input.to_string(), text);
}

TEST_P(RoundTrip, GivesTheSameDocumentThroughAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.path("job.qin");
  GetParam().document.write_file(path);
  EXPECT_EQ(parse_file(path), read_as(GetParam().document, GetParam().warnings));
}

const PostCommand angle = constraint(Kind::AngleConstraint, {1, 2, 3}, "A 1 2 3");
const PostCommand bond = constraint(Kind::BondConstraint, {1, 2}, "B 1 2");
const AtomRecord oxygen{"O", 0.0, 0.0, 0.1173};

const Row rows[] = {
    {"Empty", {}, {no_section}},
    {"CommandsOnly", {{flag("opt"), flag("freq")}}, {no_section}},
    {"ChargeOnly", {{}, charged(-2, 3)}},
    {"PostLinesOnly", {{}, {}, {bond, angle}}, {no_section}},
    {"AtomsOnly", {{}, atoms({oxygen})}},
    {"FilesOnly", {{}, files({"a.xyz", "b c.xyz", "a.xyz"})}},
    {"ATrajectoryOnly", {{}, trajectory({"my file.xyz"})}},
    {"ATrajectoryWithoutAPath",
     {{}, charged(0, 1, trajectory({}))},
     {"Line 2: XYZTRAJ reference has no file path"}},
    {"CommandsAndPostLines", {{flag("opt")}, {}, {bond, raw("#freq"), raw("0 1")}}, {no_section}},
    {"CommandsOfEveryKind",
     {{flag("freq opt"), flag("#opt"), assignment("model", "b3 lyp"), assignment("x", ""),
       assignment("f", "g(1)"), list("opt", {}), list("irc", {{"a", ""}, {"b"}, {"c", "1=2"}})},
      charged(0, 1)}},
    {"NamelessCommands",
     {{flag(""), assignment("", "5"), list("", {{"a"}})}, charged(0, 1)},
     {"Line 1: empty QUILL header command", "Line 2: QUILL header command has no name",
      "Line 3: QUILL header command has no name"}},
    {"ExtremeNumbers",
     {{},
      charged(2147483647, -2147483647 - 1,
              atoms({{"H", -0.0, 999999.999999, -99999.999999}, {"H", 1e300, -1e-6, 0.0}})),
      {scan({-1, 2147483647}, -1e-300, 0, "S -1 2147483647 -1e-300 0")}}},
    {"PostLinesOfEveryKind",
     {{},
      charged(0, 1, atoms({oxygen})),
      {constraint(Kind::AtomConstraint, {-1}, "C -1"), angle, bond,
       constraint(Kind::DihedralConstraint, {1, 2, 3, 4}, "D 1 2 3 4"),
       scan({1, 2, 3}, 90.5, 3, "S 1 2 3 90.5 3"),
       scan({4, 3, 2, 1}, -180.0, 12, "S 4 3 2 1 -180 12"), post_file("a  b", "POST a  b"),
       raw("keep   this"), raw("#freq"), raw("XYZ a"), raw("O 0 0 0")}}},
    {"AnAngleConstraintAfterAReference", {{}, files({"a"}), {angle}}},
    {"AnAngleConstraintAfterATrajectory", {{}, trajectory({"t"}), {angle}}},
    {"BytesOutsideAsciiAndNul",
     {{assignment("\xC3\xA9", "\xFF\0\x80"s), list("\0"s, {{"\xFE", "\0"s}})},
      charged(0, 1, files({"\x80\0\xFF"s})),
      {post_file("\0\xFF"s, "POST \0\xFF"s), raw("\xC3\xA9\0"s)}}},
};
INSTANTIATE_TEST_SUITE_P(Table, RoundTrip, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

/// Documents that the format cannot tell from others. What is read is not what was written.
struct AmbiguousRow {
  std::string name;
  QuillInput document;
  ParseResult result;
};

void PrintTo(const AmbiguousRow& row, std::ostream* out) {
  *out << testing::PrintToString(row.document.to_string());
}

class Ambiguity : public testing::TestWithParam<AmbiguousRow> {};

TEST_P(Ambiguity, ReadsBackAs) {
  EXPECT_EQ(parse_string(GetParam().document.to_string()), GetParam().result);
}

const AmbiguousRow ambiguous_rows[] = {
    // Four tokens, a word and three numbers: taken alone, the line is an atom line.
    {"AnAngleConstraintAfterAtoms",
     {{}, charged(0, 1, atoms({oxygen})), {angle}},
     read_as({{}, charged(0, 1, atoms({oxygen, {"A", 1, 2, 3}}))},
             {"Line 4: unknown element symbol 'A'"})},
    {"AngleConstraintsAfterAtomsUpToAnotherLine",
     {{}, charged(0, 1, atoms({oxygen})), {angle, angle, bond, angle}},
     read_as({{}, charged(0, 1, atoms({oxygen, {"A", 1, 2, 3}, {"A", 1, 2, 3}})), {bond, angle}},
             {"Line 4: unknown element symbol 'A'", "Line 5: unknown element symbol 'A'"})},
    {"AnAngleConstraintAfterAChargeOnly",
     {{}, charged(0, 1), {angle}},
     read_as({{}, charged(0, 1, atoms({{"A", 1, 2, 3}}))}, {"Line 3: unknown element symbol 'A'"})},
    {"TextWithTheShapeOfAnAtomAfterAtoms",
     {{}, atoms({oxygen}), {raw("B 1 2 3"), raw("C 1 2 3"), raw("note")}},
     read_as({{}, atoms({oxygen, {"B", 1, 2, 3}, {"C", 1, 2, 3}}), {raw("note")}})},
    {"TextWithTheShapeOfAReferenceAfterReferences",
     {{}, files({"a"}), {raw("XYZ b")}},
     read_as({{}, files({"a", "b"})})},
    {"AtomsWithoutAnAtom", {{}, charged(0, 1, atoms({}))}, read_as({{}, charged(0, 1)})},
    {"FilesWithoutAPath", {{}, charged(0, 1, files({}))}, read_as({{}, charged(0, 1)})},
    {"AnAssignmentWithoutAValue",
     {{HeaderCommand("model", HeaderCommandKind::Assignment)}, charged(0, 1)},
     read_as({{assignment("model", "")}, charged(0, 1)})},
    {"AScanWithoutAValue",
     {{}, charged(0, 1), {PostCommand(Kind::Scan, {1, 2, 3}, std::nullopt, 10)}},
     read_as({{}, charged(0, 1), {scan({1, 2}, 3.0, 10, "S 1 2 3 10")}})},
    {"ACoordinateThatFillsItsColumnsTouchesTheOneBefore",
     {{}, charged(0, 1, atoms({oxygen, {"H", 0.5, 1234567.0, 0.0}}))},
     read_as({{},
              charged(0, 1, atoms({oxygen})),
              {raw("H        0.5000001234567.000000      0.000000")}})},
    {"CoordinatesOfMoreThanSixDecimals",
     {{}, atoms({{"H", 0.12345678, 5e-7, -4e-7}})},
     read_as({{}, atoms({{"H", 0.123457, 0.0, -0.0}})})},
};
INSTANTIATE_TEST_SUITE_P(Table, Ambiguity, testing::ValuesIn(ambiguous_rows),
                         [](const auto& row) { return row.param.name; });

/// Makes documents that the format can express without ambiguity, all different.
class DocumentMaker {
 public:
  explicit DocumentMaker(std::uint32_t seed) : random_(seed) {}

  QuillInput document() {
    QuillInput input;
    for (int i = number(0, 4); i > 0; --i) input.commands.push_back(command());
    input.geometry = geometry();
    for (int i = number(0, 4); i > 0; --i) input.post_commands.push_back(post_command());
    // The first line after the atoms must be one that cannot be read as another atom, and there
    // must be a coordinate section, or the first line could be read as its beginning.
    input.post_commands.insert(input.post_commands.begin(), raw("-- " + word()));
    return input;
  }

 private:
  int number(int least, int most) {
    return std::uniform_int_distribution<int>(least, most)(random_);
  }

  std::string word() {
    static constexpr char letters[] = "abcXYZ019_-.+*/\xC3\xA9\x80\xFF";
    std::string word = "w";
    for (int i = number(0, 8); i > 0; --i)
      word += letters[number(0, static_cast<int>(sizeof letters) - 2)];
    return word;
  }

  std::string words() {
    std::string words = word();
    for (int i = number(0, 2); i > 0; --i) words += " " + word();
    return words;
  }

  CommandParameter parameter() {
    return number(0, 1) == 0 ? CommandParameter(words()) : CommandParameter(word(), words());
  }

  HeaderCommand command() {
    const int kind = number(0, 2);
    if (kind == 0) return flag(words());
    if (kind == 1) return assignment(words(), words());
    HeaderCommand command = list(words(), {});
    for (int i = number(0, 3); i > 0; --i) command.parameters.push_back(parameter());
    return command;
  }

  /// Six decimals, so that nothing is lost in writing.
  double coordinate() { return number(-200000000, 200000000) / 1e6; }

  AtomRecord atom() {
    static const char* const symbols[] = {"H", "C", "O", "Fe", "Cl", "Og"};
    return {symbols[number(0, 5)], coordinate(), coordinate(), coordinate()};
  }

  GeometryBlock geometry() {
    GeometryBlock geometry;
    geometry.kind = static_cast<GeometryKind>(number(0, 3));
    if (geometry.kind == GeometryKind::Atoms) {
      for (int i = number(1, 5); i > 0; --i) geometry.atoms.push_back(atom());
    } else if (geometry.kind != GeometryKind::None) {
      const int most = geometry.kind == GeometryKind::XyzFile ? 4 : 1;
      for (int i = number(1, most); i > 0; --i) geometry.xyz_files.push_back(words());
    }
    return geometry.kind == GeometryKind::None || number(0, 1) == 0
               ? charged(number(-9, 9), number(-9, 9), std::move(geometry))
               : geometry;
  }

  std::vector<std::int32_t> atom_numbers(int count) {
    std::vector<std::int32_t> numbers;
    for (; count > 0; --count) numbers.push_back(number(-5, 100000));
    return numbers;
  }

  PostCommand post_command() {
    PostCommand command;
    command.kind = static_cast<Kind>(number(0, 6));
    if (command.kind == Kind::Raw) return raw("## " + words());
    if (command.kind == Kind::PostFile) {
      command.post_file = words();
    } else if (command.kind == Kind::Scan) {
      command.atom_indices = atom_numbers(number(2, 4));
      command.scan_value = number(-999999, 999999) / 1e3;
      command.scan_steps = number(-10, 1000);
    } else {
      const int counts[] = {1, 2, 3, 4};
      command.atom_indices = atom_numbers(counts[static_cast<int>(command.kind)]);
    }
    command.raw_text = to_string(command);
    return command;
  }

  std::mt19937 random_;
};

TEST(RoundTripOfManyDocuments, GivesTheSameDocuments) {
  DocumentMaker maker(20240521);
  for (int i = 0; i < 2000; ++i) {
    const QuillInput document = maker.document();
    const std::string text = document.to_string();
    ASSERT_EQ(parse_string(text), read_as(document)) << "number " << i << ":\n" << text;
    ASSERT_EQ(parse_string(text).input.to_string(), text);
  }
}

}  // namespace
}  // namespace kelp::input::quill
