#include "quill-inp/command_line/common_options.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::vector<std::string> arguments;
  ColorMode color;
  bool is_quiet;
};

class FoundMessageOptions : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoArguments", {}, ColorMode::Auto, false},
    {"OtherArguments", {"get", "a", "--colour", "quiet", "-", ""}, ColorMode::Auto, false},
    {"ShortQuiet", {"get", "-q", "a"}, ColorMode::Auto, true},
    {"LongQuiet", {"--quiet"}, ColorMode::Auto, true},
    {"QuietAmongShortOptions", {"set", "-iq"}, ColorMode::Auto, true},
    {"QuietBeforeShortOptions", {"set", "-qi"}, ColorMode::Auto, true},
    {"ShortOptionsWithoutIt", {"set", "-i", "-h"}, ColorMode::Auto, false},
    {"AWordWithADashAndTheLetter", {"set", "-query"}, ColorMode::Auto, false},
    {"QuietWithAValue", {"set", "--quiet=yes"}, ColorMode::Auto, false},
    {"Color", {"get", "--color=never"}, ColorMode::Never, false},
    {"ColorInAWordOfItsOwn", {"get", "--color", "always"}, ColorMode::Always, false},
    {"TheLastColor", {"--color=never", "--color=always"}, ColorMode::Always, false},
    {"ColorThatIsNone", {"--color=never", "--color=nevr"}, ColorMode::Never, false},
    {"ColorWithoutValue", {"get", "--color"}, ColorMode::Auto, false},
    {"EmptyColor", {"get", "--color=", "never"}, ColorMode::Auto, false},
    {"AnotherOptionThatBeginsSo", {"get", "--colors=never"}, ColorMode::Auto, false},
    {"Both", {"get", "--color=never", "-q"}, ColorMode::Never, true},
    {"AfterTheEndOfOptions", {"get", "--", "-q", "--color=never"}, ColorMode::Auto, false},
    {"AValueAfterTheEndOfOptions", {"get", "--color", "--", "never"}, ColorMode::Auto, false},
};

TEST_P(FoundMessageOptions, AreThoseBeforeTheEndOfOptions) {
  const CommonOptions options = find_message_options(GetParam().arguments);
  EXPECT_EQ(options.color, GetParam().color);
  EXPECT_EQ(options.is_quiet, GetParam().is_quiet);
}

INSTANTIATE_TEST_SUITE_P(Table, FoundMessageOptions, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
