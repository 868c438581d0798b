#include <gtest/gtest.h>

#include <ostream>

#include "kelp/input/quill/document.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using namespace std::string_view_literals;

struct ParameterRow {
  const char* name;
  std::vector<std::string> names;
  std::string_view query;
  std::optional<std::uint64_t> index;
};

void PrintTo(const ParameterRow& row, std::ostream* out) { *out << row.name; }

const ParameterRow parameter_rows[] = {
    {"EmptyList", {}, "basis", std::nullopt},
    {"First", {"basis", "maxiter"}, "basis", 0},
    {"Last", {"basis", "maxiter", "tight"}, "tight", 2},
    {"Missing", {"basis", "maxiter"}, "tight", std::nullopt},
    {"FirstOfTwoMatches", {" Basis", "basis"}, "BASIS", 0},
    {"FirstOfTwoMatchesPastAnother", {"maxiter", "BASIS ", "basis"}, "basis", 1},
    {"QueryInUpperCase", {"basis"}, "BASIS", 0},
    {"QueryWithBlanks", {"basis"}, " \t\n\v\f\rBasis \t\n\v\f\r", 0},
    {"StoredWithBlanks", {" \t\n\v\f\rBasis \t\n\v\f\r"}, "basis", 0},
    {"HashInTheQueryCounts", {"basis"}, "#basis", std::nullopt},
    {"HashInTheStoredNameCounts", {"#basis"}, "basis", std::nullopt},
    {"HashInBoth", {"basis", " #Basis"}, "#BASIS", 1},
    {"OneCharacterShort", {"basis"}, "basi", std::nullopt},
    {"OneCharacterTooMany", {"basis"}, "basiss", std::nullopt},
    {"BlankInside", {"basis"}, "ba sis", std::nullopt},
    {"EqualsSignCounts", {"basis"}, "basis=", std::nullopt},
    {"EmptyQueryFindsAnEmptyName", {"basis", ""}, "", 1},
    {"EmptyQueryFindsABlankName", {"basis", " \t"}, "", 1},
    {"EmptyQueryFindsNoOther", {"basis"}, "", std::nullopt},
    {"HashIsNotEmpty", {""}, "#", std::nullopt},
    {"NulCounts", {"basis"}, "basis\0"sv, std::nullopt},
    {"BytesAbove127AreCompared", {"\xC3\xA4", "\xC3\x84X"}, "\xC3\x84x", 1},
};

HeaderCommand command_with(const std::vector<std::string>& names, HeaderCommandKind kind) {
  HeaderCommand command{"basis", kind, "tight"};
  for (const std::string& name : names) command.parameters.emplace_back(name, "tight");
  return command;
}

class FindParameterIndex : public testing::TestWithParam<ParameterRow> {};

TEST_P(FindParameterIndex, ReturnsTheFirstMatchForAnyKind) {
  for (const std::int32_t kind : {0, 1, 2, 3, -1}) {
    const HeaderCommand command = command_with(GetParam().names, HeaderCommandKind{kind});
    EXPECT_EQ(find_parameter_index(command, GetParam().query), GetParam().index) << kind;
    EXPECT_EQ(command, command_with(GetParam().names, HeaderCommandKind{kind}));
  }
}

INSTANTIATE_TEST_SUITE_P(Table, FindParameterIndex, testing::ValuesIn(parameter_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FindParameterIndex, FindsParametersWithAndWithoutAValue) {
  const HeaderCommand command{
      "opt", HeaderCommandKind::ParameterList, {}, {{"tight"}, {"basis", ""}, {"maxiter", "5"}}};
  EXPECT_EQ(find_parameter_index(command, "tight"), 0U);
  EXPECT_EQ(find_parameter_index(command, "basis"), 1U);
  EXPECT_EQ(find_parameter_index(command, "maxiter"), 2U);
}

TEST(FindParameterIndex, TakesANameThatPointsIntoTheCommand) {
  const HeaderCommand command =
      command_with({"tight", "basis", " Basis"}, HeaderCommandKind::ParameterList);
  EXPECT_EQ(find_parameter_index(command, command.parameters[2].name), 1U);
  EXPECT_EQ(find_parameter_index(command, command.name), 1U);
}

}  // namespace

}  // namespace kelp::input::quill
