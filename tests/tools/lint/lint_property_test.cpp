// Checks what is true for the findings of any text, on the inputs that come with the library, on
// everything that the fuzzers keep, and on the inputs of the pages with odd bytes in every place.

#include <gtest/gtest.h>

#include <string>

#include "lint/pages.hpp"
#include "lint/rule.hpp"
#include "properties/holds.hpp"
#include "properties/sample_files.hpp"
#include "tools/lint/page_text.hpp"
#include "tools/properties/linting.hpp"

namespace kelp::input::quill::lint {

inline void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.code; }

namespace {

class LintedFile : public testing::TestWithParam<SampleFile> {};

TEST_P(LintedFile, HasTheProperties) {
  EXPECT_TRUE(holds([] { check_linting(GetParam().content); }));
}

TEST_P(LintedFile, HasThemHoweverItIsCutShort) {
  const std::string& text = GetParam().content;
  const std::size_t step = 1 + text.size() / 200;
  for (std::size_t length = 0; length < text.size(); length += step)
    ASSERT_TRUE(holds([&] { check_linting(text.substr(0, length)); }));
}

INSTANTIATE_TEST_SUITE_P(Examples, LintedFile, testing::ValuesIn(example_inputs()),
                         [](const auto& file) { return test_name(file.param); });
INSTANTIATE_TEST_SUITE_P(Seeds, LintedFile, testing::ValuesIn(sample_files("fuzz/seeds")),
                         [](const auto& file) { return test_name(file.param); });

class LintedPage : public testing::TestWithParam<Rule> {};

TEST_P(LintedPage, HasThePropertiesWithOddBytesInAnyPlace) {
  const std::string odd[] = {"\xEF\xBB\xBF", "\r", "\u00A0", "\u2212", "\u201C", ",", "\xFF", "1"};
  for (const char* const heading : {"## Bad", "## Corrected"}) {
    const std::string text = input_below(page_of(GetParam().code), heading);
    ASSERT_TRUE(holds([&] { check_linting(text); }));
    for (std::size_t i = 0; i <= text.size(); ++i) {
      for (const std::string& bytes : odd)
        ASSERT_TRUE(holds([&] { check_linting(std::string(text).insert(i, bytes)); }));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Table, LintedPage, testing::ValuesIn(all_rules()),
                         [](const auto& row) { return std::string(row.param.code); });

}  // namespace

}  // namespace kelp::input::quill::lint
