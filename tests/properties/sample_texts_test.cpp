// Checks what is true for every input on the inputs that come with the library, whole, cut short
// and with a byte changed, and for everything that the fuzzers keep.

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <string>
#include <tuple>

#include "properties/editing.hpp"
#include "properties/everything.hpp"
#include "properties/holds.hpp"
#include "properties/made_document.hpp"
#include "properties/reading.hpp"
#include "properties/sample_files.hpp"
#include "properties/text_functions.hpp"
#include "properties/writing.hpp"

namespace kelp::input::quill {
namespace {

/// The properties that cost no more than a few readings.
void check_reading_and_writing(const std::string& text) {
  const ParseResult result = parse_string(text);
  check_result(text, result);
  check_lines(text, parse_lines(text));
  check_against_obvious_reader(text, result);
  check_round_trip(result.input);
}

class Example : public testing::TestWithParam<SampleFile> {};

TEST_P(Example, HasTheProperties) {
  EXPECT_TRUE(holds([] { check_text(GetParam().content); }));
}

TEST_P(Example, HasThemHoweverItIsCutShort) {
  const std::string& text = GetParam().content;
  for (std::size_t length = 0; length < text.size(); ++length)
    ASSERT_TRUE(holds([&] { check_reading_and_writing(text.substr(0, length)); }));
}

INSTANTIATE_TEST_SUITE_P(Inputs, Example, testing::ValuesIn(example_inputs()),
                         [](const auto& file) { return test_name(file.param); });

// In parts, for they are many.
constexpr std::size_t parts = 4;

class ChangedExample : public testing::TestWithParam<std::tuple<std::string, std::size_t>> {};

TEST_P(ChangedExample, HasThePropertiesWhateverOneByteBecomes) {
  std::string text = example_input(std::get<0>(GetParam())).content;
  for (std::size_t i = std::get<1>(GetParam()); i < text.size(); i += parts) {
    const char original = text[i];
    for (int value = 0; value <= std::numeric_limits<unsigned char>::max(); ++value) {
      text[i] = static_cast<char>(static_cast<unsigned char>(value));
      ASSERT_TRUE(holds([&] { check_reading_and_writing(text); }));
    }
    text[i] = original;
  }
}

INSTANTIATE_TEST_SUITE_P(Inputs, ChangedExample,
                         testing::Combine(testing::Values("hydrogen_cyanide_path.qin",
                                                          "water_gas_shift.qin",
                                                          "hydrogen_peroxide_scan.qin"),
                                          testing::Range<std::size_t>(0, parts)));

class KeptInput : public testing::TestWithParam<SampleFile> {};

TEST_P(KeptInput, HasTheProperties) {
  const std::string& bytes = GetParam().content;
  ByteSource source(bytes);
  EXPECT_TRUE(holds([&] { check_text(bytes); }));
  EXPECT_TRUE(holds([&] { check_document(made_document(source)); }));
  EXPECT_TRUE(holds([&] { check_edits(bytes); }));
  EXPECT_TRUE(holds([&] { check_text_functions(bytes); }));
}

INSTANTIATE_TEST_SUITE_P(Seeds, KeptInput, testing::ValuesIn(sample_files("fuzz/seeds")),
                         [](const auto& file) { return test_name(file.param); });
INSTANTIATE_TEST_SUITE_P(Findings, KeptInput, testing::ValuesIn(sample_files("fuzz/findings")),
                         [](const auto& file) { return test_name(file.param); });

}  // namespace
}  // namespace kelp::input::quill
