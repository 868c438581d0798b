#include "quill-inp/formats/document_json.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "kelp/input/quill/reader.hpp"
#include "quill-inp/process/trouble.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "tools/quill-inp/formats/json_schema.hpp"
#include "tools/quill-inp/support/json_of.hpp"

namespace kelp::input::quill::tool {
namespace {

using Json = nlohmann::json;

Json published_schema() {
  std::ifstream file(QUILL_INP_SCHEMA);
  return Json::parse(file);
}

struct DocumentRow {
  std::string_view name;
  QuillInput document;
};

class DocumentJson : public testing::TestWithParam<DocumentRow> {};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

GeometryBlock with_numbers(std::int32_t charge, std::int32_t multiplicity, bool has_line) {
  GeometryBlock geometry;
  geometry.charge = charge;
  geometry.multiplicity = multiplicity;
  geometry.has_charge_and_multiplicity = has_line;
  return geometry;
}

GeometryBlock with_kind(GeometryKind kind, std::vector<AtomRecord> atoms,
                        std::vector<std::string> files) {
  GeometryBlock geometry;
  geometry.kind = kind;
  geometry.atoms = std::move(atoms);
  geometry.xyz_files = std::move(files);
  return geometry;
}

const DocumentRow document_rows[] = {
    {"Empty", {}},
    {"Flag", QuillInput({HeaderCommand("freq")})},
    {"Assignment", QuillInput({HeaderCommand("model", HeaderCommandKind::Assignment, "m1")})},
    {"AssignmentOfNothing",
     QuillInput({HeaderCommand("model", HeaderCommandKind::Assignment, "")})},
    {"AssignmentWithoutValue", QuillInput({HeaderCommand("model", HeaderCommandKind::Assignment)})},
    {"Parameters", QuillInput({HeaderCommand("opt", HeaderCommandKind::ParameterList, std::nullopt,
                                             {{"maxiter", "50"}, {"tight"}, {"basis", ""}})})},
    {"MembersThatTheKindDoesNotUse",
     QuillInput({HeaderCommand("opt", HeaderCommandKind::Flag, "v", {{"p"}})})},
    {"NoName", QuillInput({HeaderCommand("")})},
    {"BytesThatAreNotUtf8",
     QuillInput({HeaderCommand("\xFFm", HeaderCommandKind::Assignment, "\xC3(")})},
    {"ChargeAndMultiplicity", QuillInput({}, with_numbers(-2, 3, true))},
    {"NewNumbersWithALine", QuillInput({}, with_numbers(0, 1, true))},
    {"NumbersWithoutALine", QuillInput({}, with_numbers(2, 1, false))},
    {"MultiplicityWithoutALine", QuillInput({}, with_numbers(0, 2, false))},
    {"LargestIntegers", QuillInput({}, with_numbers(-2147483647 - 1, 2147483647, true))},
    {"Atoms",
     QuillInput({}, with_kind(GeometryKind::Atoms,
                              {{"He", 0.1, -0.0, 1e-300}, {"X", infinity, -infinity, nan}}, {}))},
    {"Files", QuillInput({}, with_kind(GeometryKind::XyzFile, {}, {"a b.xyz", "\xFF"}))},
    {"Trajectory", QuillInput({}, with_kind(GeometryKind::XyzTrajectory, {}, {"t.xyz"}))},
    {"TrajectoryWithoutPath", QuillInput({}, with_kind(GeometryKind::XyzTrajectory, {}, {}))},
    {"PostCommands",
     QuillInput({}, {},
                {PostCommand(PostCommandKind::AtomConstraint, {1}),
                 PostCommand(PostCommandKind::BondConstraint, {1, 2}),
                 PostCommand(PostCommandKind::AngleConstraint, {1, 2, 3}),
                 PostCommand(PostCommandKind::DihedralConstraint, {1, 2, 3, 4}, std::nullopt,
                             std::nullopt, "", "D 1 2 3 4"),
                 PostCommand(PostCommandKind::Scan, {1, 2}, 0.1, 10),
                 PostCommand(PostCommandKind::Scan, {1, 2}, -nan, -3),
                 PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, "a b"),
                 PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, "", "\x1Btext"),
                 PostCommand(PostCommandKind::Raw)})},
};

TEST_P(DocumentJson, ComesBackWhole) {
  EXPECT_EQ(document_from_json(json_of(GetParam().document)), GetParam().document);
}

TEST_P(DocumentJson, FollowsThePublishedSchema) {
  EXPECT_TRUE(is_valid(Json::parse(json_of(GetParam().document)), published_schema()));
}

INSTANTIATE_TEST_SUITE_P(Table, DocumentJson, testing::ValuesIn(document_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DocumentJson, NamesTheMembersOfTheLibrary) {
  const QuillInput input = parse_string(
                               "#opt(maxiter=50, tight)\n#model=m1\n#freq\n0 1\nHe 0 0.5 -1\n"
                               "B 1 2\nS 1 2 1.5 10\nPOST a\nPRINT\n")
                               .input;
  EXPECT_EQ(json_of(input),
            "{\n"
            "  \"commands\": [\n"
            "    {\"name\": \"opt\", \"kind\": \"parameter_list\", \"parameters\": [{\"name\": "
            "\"maxiter\", \"value\": \"50\"}, {\"name\": \"tight\"}]},\n"
            "    {\"name\": \"model\", \"kind\": \"assignment\", \"value\": \"m1\"},\n"
            "    {\"name\": \"freq\", \"kind\": \"flag\"}\n"
            "  ],\n"
            "  \"geometry\": {\n"
            "    \"kind\": \"atoms\",\n"
            "    \"charge\": 0,\n"
            "    \"multiplicity\": 1,\n"
            "    \"atoms\": [\n"
            "      {\"symbol\": \"He\", \"x\": 0.0, \"y\": 0.5, \"z\": -1.0}\n"
            "    ]\n"
            "  },\n"
            "  \"post_commands\": [\n"
            "    {\"kind\": \"bond_constraint\", \"atom_indices\": [1, 2], \"raw_text\": \"B 1 "
            "2\"},\n"
            "    {\"kind\": \"scan\", \"atom_indices\": [1, 2], \"scan_value\": 1.5, "
            "\"scan_steps\": 10, \"raw_text\": \"S 1 2 1.5 10\"},\n"
            "    {\"kind\": \"post_file\", \"post_file\": \"a\", \"raw_text\": \"POST a\"},\n"
            "    {\"kind\": \"raw\", \"raw_text\": \"PRINT\"}\n"
            "  ]\n"
            "}\n");
}

TEST(DocumentJson, MayLeaveOutWhatIsNew) {
  EXPECT_EQ(document_from_json("{}"), QuillInput());
  QuillInput charged;
  charged.geometry.charge = 2;
  charged.geometry.has_charge_and_multiplicity = true;
  EXPECT_EQ(document_from_json(R"({"geometry": {"kind": "none", "charge": 2}})"), charged);
  QuillInput doublet;
  doublet.geometry.multiplicity = 2;
  doublet.geometry.has_charge_and_multiplicity = true;
  EXPECT_EQ(document_from_json(R"({"geometry": {"kind": "none", "multiplicity": 2.0}})"), doublet);
}

TEST(DocumentJson, MaySayThatChargeAndMultiplicityHaveNoLineBeforeOrAfterThem) {
  QuillInput charged;
  charged.geometry.charge = 2;
  for (const char* json :
       {R"({"geometry": {"kind": "none", "charge": 2, "has_charge_and_multiplicity": false}})",
        R"({"geometry": {"has_charge_and_multiplicity": false, "charge": 2, "kind": "none"}})"})
    EXPECT_EQ(document_from_json(json), charged) << json;
}

TEST(DocumentJson, IsReadInAnyOrderOfItsMembers) {
  EXPECT_EQ(
      document_from_json(R"({"post_commands": [{"raw_text": "a", "kind": "raw"}],
                                   "commands": [{"value": {"bytes": "ff"}, "kind": "assignment",
                                                 "name": "b"}]})"),
      QuillInput({HeaderCommand("b", HeaderCommandKind::Assignment, "\xFF")}, {},
                 {PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, "", "a")}));
}

struct BadRow {
  std::string_view name;
  std::string_view json;
  std::string_view complaint;
};

class BadDocumentJson : public testing::TestWithParam<BadRow> {};

const BadRow bad_rows[] = {
    {"List", "[]", "the outermost value: expected an object"},
    {"UnknownMember", R"({"comands": []})",
     "the outermost value: unknown member 'comands'; did you mean 'commands'?"},
    {"CommandsThatAreNotAList", R"({"commands": {}})", "/commands: expected a list"},
    {"CommandThatIsNotAnObject", R"({"commands": [1]})", "/commands/0: expected an object"},
    {"CommandWithoutName", R"({"commands": [{"kind": "flag"}]})",
     "/commands/0: expected a member 'name'"},
    {"CommandWithoutKind", R"({"commands": [{"name": "a"}]})",
     "/commands/0: expected a member 'kind'"},
    {"CommandOfUnknownKind", R"({"commands": [{"name": "a", "kind": "Flag"}]})",
     "/commands/0/kind: expected one of 'flag', 'assignment', 'parameter_list'"},
    {"CommandOfNumericKind", R"({"commands": [{"name": "a", "kind": 0}]})",
     "/commands/0/kind: expected one of 'flag', 'assignment', 'parameter_list'"},
    {"ValueThatIsNotAString", R"({"commands": [{"name": "a", "kind": "flag", "value": 1}]})",
     R"(/commands/0/value: expected a string or {"bytes": "..."})"},
    {"ParameterWithoutName",
     R"({"commands": [{"name": "a", "kind": "flag", "parameters": [{"name": "b"}, {}]}]})",
     "/commands/0/parameters/1: expected a member 'name'"},
    {"ParameterWithAnUnknownMember",
     R"({"commands": [{"name": "a", "kind": "flag", "parameters": [{"name": "b", "val": ""}]}]})",
     "/commands/0/parameters/0: unknown member 'val'"},
    {"GeometryWithoutKind", R"({"geometry": {}})", "/geometry: expected a member 'kind'"},
    {"GeometryWithAnUnknownMember", R"({"geometry": {"kind": "none", "mult": 1}})",
     "/geometry: unknown member 'mult'"},
    {"ChargeTooLarge", R"({"geometry": {"kind": "none", "charge": 2147483648}})",
     "/geometry/charge: expected a 32-bit integer"},
    {"ChargeTooSmall", R"({"geometry": {"kind": "none", "charge": -2147483649}})",
     "/geometry/charge: expected a 32-bit integer"},
    {"HalfACharge", R"({"geometry": {"kind": "none", "charge": 0.5}})",
     "/geometry/charge: expected a 32-bit integer"},
    {"ChargeInAString", R"({"geometry": {"kind": "none", "charge": "0"}})",
     "/geometry/charge: expected a 32-bit integer"},
    {"LineThatIsNotTrueOrFalse",
     R"({"geometry": {"kind": "none", "has_charge_and_multiplicity": 1}})",
     "/geometry/has_charge_and_multiplicity: expected true or false"},
    {"AtomWithoutZ",
     R"({"geometry": {"kind": "atoms", "atoms": [{"symbol": "H", "x": 0, "y": 0}]}})",
     "/geometry/atoms/0: expected a member 'z'"},
    {"CoordinateThatIsNotANumber",
     R"({"geometry": {"kind": "atoms", "atoms": [{"symbol": "H", "x": "a", "y": 0, "z": 0}]}})",
     R"(/geometry/atoms/0/x: expected a number, "inf", "-inf", "nan" or "-nan")"},
    {"PostCommandOfUnknownKind", R"({"post_commands": [{"kind": "bond"}]})",
     "/post_commands/0/kind: expected one of 'atom_constraint', 'bond_constraint', "
     "'angle_constraint', 'dihedral_constraint', 'scan', 'post_file', 'raw'"},
    {"PostCommandWithAnUnknownMember", R"({"post_commands": [{"kind": "raw", "text": "a"}]})",
     "/post_commands/0: unknown member 'text'"},
    {"AtomNumberThatIsNone", R"({"post_commands": [{"kind": "raw", "atom_indices": [1, null]}]})",
     "/post_commands/0/atom_indices/1: expected a 32-bit integer"},
    {"NameThatIsNull", R"({"commands": [{"name": null, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsAnEmptyObject", R"({"commands": [{"name": {}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsAnotherMember", R"({"commands": [{"name": {"byte": "00"}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsAMemberBeforeTheBytes",
     R"({"commands": [{"name": {"x": 1, "bytes": "00"}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsAMemberAfterTheBytes",
     R"({"commands": [{"name": {"bytes": "00", "x": 1}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsBytesThatAreNotAString",
     R"({"commands": [{"name": {"bytes": 0}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsBytesThatAreAList",
     R"({"commands": [{"name": {"bytes": ["00"]}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsBytesThatAreAnObject",
     R"({"commands": [{"name": {"bytes": {"bytes": "00"}}, "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsAList", R"({"commands": [{"name": ["a"], "kind": "flag"}]})",
     R"(/commands/0/name: expected a string or {"bytes": "..."})"},
    {"NameThatIsHalfAByte", R"({"commands": [{"name": {"bytes": "00f"}, "kind": "flag"}]})",
     "/commands/0/name: expected pairs of hexadecimal digits in lower case"},
    {"PathThatIsNotAString",
     R"({"geometry": {"kind": "xyz_file", "xyz_files": ["a", {"bytes": 1}]}})",
     R"(/geometry/xyz_files/1: expected a string or {"bytes": "..."})"},
    {"AtomThatIsAList", R"({"geometry": {"kind": "atoms", "atoms": [["H", 0, 0, 0]]}})",
     "/geometry/atoms/0: expected an object"},
    {"OneValue", "1", "the outermost value: expected an object"},
    {"CoordinateThatIsTrue",
     R"({"geometry": {"kind": "atoms", "atoms": [{"symbol": "H", "x": true, "y": 0, "z": 0}]}})",
     R"(/geometry/atoms/0/x: expected a number, "inf", "-inf", "nan" or "-nan")"},
};

TEST_P(BadDocumentJson, IsRefusedWithThePlace) {
  try {
    document_from_json(GetParam().json);
    FAIL() << "no exception";
  } catch (const Trouble& trouble) {
    EXPECT_EQ(std::string_view(trouble.what()), GetParam().complaint);
  }
}

TEST_P(BadDocumentJson, IsNotOfThePublishedSchema) {
  EXPECT_FALSE(is_valid(Json::parse(GetParam().json), published_schema()));
}

/// Returns what is wrong with a text, after the line number.
std::string complaint(std::string_view json) {
  try {
    document_from_json(json);
  } catch (const Trouble& trouble) {
    return std::to_string(trouble.line().value_or(0)) + ": " + trouble.what();
  }
  return {};
}

TEST(DocumentJson, WithTwoMembersOfOneNameInAnObjectIsRefused) {
  EXPECT_EQ(complaint(R"({"commands": [{"name": "a",
                                         "name": "a", "kind": "flag"}]})"),
            "2: two members 'name' in one JSON object");
  EXPECT_EQ(complaint("{\"commands\": [],\n\"commands\": []}"),
            "2: two members 'commands' in one JSON object");
  EXPECT_EQ(complaint(R"({"commands": [{"name": {"bytes": "00", "bytes": "00"}}]})"),
            R"(1: /commands/0/name: expected a string or {"bytes": "..."})");
  EXPECT_EQ(complaint(R"({"commands": [{"name": "a", "kind": "flag"},
                                        {"name": "a", "kind": "flag"}]})"),
            "");
}

INSTANTIATE_TEST_SUITE_P(Table, BadDocumentJson, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
