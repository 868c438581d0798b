#include "quill-inp/keys/key.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

/// A key in one line, its pieces apart.
std::string describe(const Key& key) {
  if (const auto* special = std::get_if<SpecialKey>(&key))
    return "special " + std::to_string(static_cast<int>(*special));
  if (const auto* post = std::get_if<PostKey>(&key)) {
    const std::string kind = "post " + std::to_string(static_cast<int>(post->kind));
    return post->number ? kind + " number " + std::to_string(*post->number) : kind;
  }
  const auto& command = std::get<CommandKey>(key);
  std::string text = "<" + command.command + ">";
  if (command.position) text += " position " + std::to_string(*command.position);
  if (command.occurrence) text += " number " + std::to_string(*command.occurrence);
  if (command.parameter) text += " parameter <" + *command.parameter + ">";
  return text;
}

struct Row {
  std::string_view name;
  std::string_view text;
  std::string_view key;
};

class ParsedKey : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"Command", "opt", "<opt>"},
    {"CommandInItsSpelling", "OPT", "<OPT>"},
    {"HashAndBlanksAroundItAreNotPartOfTheName", " # opt ", "<opt>"},
    {"OnlyOneHashIsTaken", "##opt", "<#opt>"},
    {"HashAloneIsTheNamelessCommand", "#", "<>"},
    {"Parameter", "opt.maxiter", "<opt> parameter <maxiter>"},
    {"Occurrence", "opt[1]", "<opt> number 1"},
    {"OccurrenceZero", "opt[0]", "<opt> number 0"},
    {"ParameterOfAnOccurrence", "opt[12].maxiter", "<opt> number 12 parameter <maxiter>"},
    {"LargestOccurrence", "a[18446744073709551615]", "<a> number 18446744073709551615"},
    {"DotInACommand", R"(a\.b.c)", "<a.b> parameter <c>"},
    {"DotInAParameter", R"(a.b\.c)", "<a> parameter <b.c>"},
    {"BracketsInAName", R"(a\[1\])", "<a[1]>"},
    {"BackslashInAName", R"(a\\.b)", "<a\\> parameter <b>"},
    {"EqualsSignInAName", R"(a\=b)", "<a=b>"},
    {"AtSignBeforeAName", R"(\@charge)", "<@charge>"},
    {"AtSignInsideAName", "a@b", "<a@b>"},
    {"BlanksInsideAName", "freq opt", "<freq opt>"},
    {"Charge", "@charge", "special 0"},
    {"Multiplicity", "@multiplicity", "special 1"},
    {"Geometry", "@geometry", "special 2"},
    {"Files", "@files", "special 3"},
    {"Atoms", "@atoms", "special 4"},
    {"Formula", "@formula", "special 5"},
    {"AtomCount", "@natoms", "special 6"},
    {"Keys", "@keys", "special 7"},
    {"AtomConstraints", "@atom_constraints", "post 0"},
    {"Bonds", "@bonds", "post 1"},
    {"Angles", "@angles", "post 2"},
    {"Dihedrals", "@dihedrals", "post 3"},
    {"Scans", "@scans", "post 4"},
    {"PostFiles", "@post_files", "post 5"},
    {"RawText", "@raw", "post 6"},
    {"OneAtomConstraint", "@atom_constraint[0]", "post 0 number 0"},
    {"OneBond", "@bond[12]", "post 1 number 12"},
    {"OneOfTheBonds", "@bonds[12]", "post 1 number 12"},
    {"OnePostFile", "@post_file[1]", "post 5 number 1"},
    {"OneLineOfRawText", "@raw[1]", "post 6 number 1"},
    {"AnyCommand", "@commands[2]", "<> position 2"},
    {"AParameterOfAnyCommand", R"(@commands[0].a\.b)", "<> position 0 parameter <a.b>"},
};

TEST_P(ParsedKey, IsTakenApart) { EXPECT_EQ(describe(parse_key(GetParam().text)), GetParam().key); }

INSTANTIATE_TEST_SUITE_P(Table, ParsedKey, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

struct BadRow {
  std::string_view name;
  std::string_view text;
  std::string_view reason;
};

class BadKey : public testing::TestWithParam<BadRow> {};

constexpr std::string_view too_many =
    "there is one '.', '[' or ']' too many, or a backslash is missing before it";
constexpr std::string_view bad_number = "a number and ']' must follow '['";
constexpr std::string_view bad_backslash = R"(a backslash goes before one of .[]=@\)";

const BadRow bad_rows[] = {
    {"NoText", "", "the name is missing"},
    {"BlanksOnly", " ", "the name is missing"},
    {"NoCommand", ".a", "the name is missing"},
    {"NoCommandBeforeANumber", "[1]", "the name is missing"},
    {"NoParameter", "a.", "a parameter name is missing after '.'"},
    {"BlankParameter", "a. ", "a parameter name is missing after '.'"},
    {"TwoDots", "a.b.c", too_many},
    {"NumberOfAParameter", "a.b[1]", too_many},
    {"TwoNumbers", "a[1][2]", too_many},
    {"TextAfterTheNumber", "a[1]b", too_many},
    {"ClosingBracketAlone", "a]", too_many},
    {"NoNumber", "a[]", bad_number},
    {"NoClosingBracket", "a[1", bad_number},
    {"NothingAfterTheBracket", "a[", bad_number},
    {"NegativeNumber", "a[-1]", bad_number},
    {"NumberWithASign", "a[+1]", bad_number},
    {"NotANumber", "a[x]", bad_number},
    {"NumberThatIsTooLarge", "a[18446744073709551616]", bad_number},
    {"BackslashAtTheEnd", "a\\", bad_backslash},
    {"CommandsWithoutANumber", "@commands", "a number in brackets must follow '@commands'"},
    {"CommandsWithoutANumberInTheBrackets", "@commands[]", bad_number},
    {"NoParameterOfAnyCommand", "@commands[1].", "a parameter name is missing after '.'"},
    {"TextAfterAnyCommand", "@commands[1]x", too_many},
    {"ParameterOfABond", "@bond[1].x", too_many},
    {"TwoNumbersOfABond", "@bond[1][2]", too_many},
    {"BondsWithoutANumberInTheBrackets", "@bonds[x]", bad_number},
    {"BackslashBeforeALetter", "a\\b", bad_backslash},
};

TEST_P(BadKey, IsRefusedWithTheReasonAndTheGrammar) {
  try {
    parse_key(GetParam().text);
    FAIL() << "no exception";
  } catch (const UsageError& error) {
    EXPECT_EQ(
        std::string(error.what()),
        "bad key '" + std::string(GetParam().text) + "': " + std::string(GetParam().reason) +
            "; a key is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where "
            "N counts from 0, or begins with '@', such as @charge, @bonds, @bond[N] or "
            "@commands[N]");
  }
}

INSTANTIATE_TEST_SUITE_P(Table, BadKey, testing::ValuesIn(bad_rows),
                         [](const auto& row) { return std::string(row.param.name); });

std::string complaint(std::string_view text) {
  try {
    parse_key(text);
  } catch (const UsageError& error) {
    return error.what();
  }
  return {};
}

TEST(SpecialKey, ThatIsUnknownGetsTheNearestOne) {
  EXPECT_EQ(complaint("@chrge"), "unknown key '@chrge'; did you mean '@charge'?");
  EXPECT_EQ(complaint("@Charge"), "unknown key '@Charge'; did you mean '@charge'?");
  EXPECT_EQ(complaint("@nothing"), "unknown key '@nothing'");
  EXPECT_EQ(complaint("@bond"), "unknown key '@bond'; did you mean '@bonds'?");
  EXPECT_EQ(complaint("@charge[0]"), "unknown key '@charge[0]'");
  EXPECT_EQ(complaint("@command[0]"), "unknown key '@command[0]'; did you mean '@commands'?");
  EXPECT_EQ(complaint("@"), "unknown key '@'");
}

struct NameRow {
  std::string_view typed;
  std::string_view stored;
  bool is_nameless;
};

constexpr NameRow name_rows[] = {
    {"opt", "opt", false}, {" # Opt ", "Opt", false}, {"##x", "#x", false},
    {"", "", true},        {" \t", "", true},         {"#", "", true},
    {"##", "#", true},     {" # # ", "#", true},      {"#.", ".", false},
};

TEST(CommandName, IsStoredWithoutTheHashThatWasTyped) {
  for (const NameRow& row : name_rows) {
    EXPECT_EQ(stored_command_name(row.typed), row.stored);
    EXPECT_EQ(is_nameless(row.stored), row.is_nameless) << row.typed;
  }
}

struct SettingRow {
  std::string_view name;
  std::string_view text;
  std::string_view key_text;
  std::string_view key;
  std::optional<std::string> value;
};

class ParsedSetting : public testing::TestWithParam<SettingRow> {};

const SettingRow setting_rows[] = {
    {"WithoutValue", "opt.tight", "opt.tight", "<opt> parameter <tight>", std::nullopt},
    {"WithValue", "opt.maxiter=50", "opt.maxiter", "<opt> parameter <maxiter>", "50"},
    {"WithAnEmptyValue", "model=", "model", "<model>", ""},
    {"TheFirstEqualsSignSeparates", "model=a=b", "model", "<model>", "a=b"},
    {"TheValueIsKeptAsItIs", R"(model= a.b[0]\)", "model", "<model>", R"( a.b[0]\)"},
    {"AnEscapedEqualsSignDoesNotSeparate", R"(a\=b=c)", R"(a\=b)", "<a=b>", "c"},
    {"AnEscapedBackslashEscapesNothing", R"(a\\=c)", R"(a\\)", "<a\\>", "c"},
    {"SpecialKeys", "@charge=-1", "@charge", "special 0", "-1"},
};

TEST_P(ParsedSetting, IsAKeyAndAValue) {
  const Setting setting = parse_setting(GetParam().text);
  EXPECT_EQ(setting.key_text, GetParam().key_text);
  EXPECT_EQ(describe(setting.key), GetParam().key);
  EXPECT_EQ(setting.value, GetParam().value);
}

TEST_P(ParsedSetting, IsKnownToHaveAValue) {
  EXPECT_EQ(has_value(GetParam().text), GetParam().value.has_value());
}

INSTANTIATE_TEST_SUITE_P(Table, ParsedSetting, testing::ValuesIn(setting_rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
