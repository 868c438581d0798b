#include "quill-inp/command_line/arguments.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

#include <CLI/App.hpp>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

constexpr Option quiet{"-q,--quiet", "", "Say less"};
constexpr Option color{"--color", "WHEN", "Use colour"};
constexpr Option backup{"--backup", "SUFFIX", "Keep a copy"};
constexpr Option file{"FILE", "", "The input"};

/// Returns what a function throws, in words, or the empty text when it throws nothing.
template <typename Exception, typename Function>
std::string complaint_of(Function function) {
  try {
    function();
  } catch (const Exception& error) {
    return error.what();
  }
  return "";
}

TEST(Option, HasTheLongOneOfItsNames) {
  EXPECT_EQ(name_of(quiet), "--quiet");
  EXPECT_EQ(name_of(color), "--color");
  EXPECT_EQ(name_of(file), "FILE");
}

TEST(AnOptionThatTheVerbDoesNotHave, IsALogicError) {
  CLI::App verb("", "show");
  add_flag(verb, quiet);
  EXPECT_NO_THROW(is_given(verb, quiet));
  const std::string complaint = "the verb 'show' has no option --color";
  EXPECT_EQ(complaint_of<std::logic_error>([&] { is_given(verb, color); }), complaint);
  EXPECT_EQ(complaint_of<std::logic_error>([&] { value_of(verb, color); }), complaint);
  EXPECT_EQ(complaint_of<std::logic_error>([&] { values_of(verb, color); }), complaint);
  EXPECT_EQ(complaint_of<std::logic_error>([&] { attached_value_of(verb, color, ""); }), complaint);
  EXPECT_EQ(complaint_of<std::logic_error>([&] {
              uses_in_order(verb, {quiet, color});
            }),
            complaint);
}

TEST(AnOption, IsReadByTheConstantThatItWasAddedBy) {
  CLI::App verb("", "show");
  add_argument(verb, file);
  add_flag(verb, quiet);
  add_value(verb, color);
  add_attached_value(verb, backup);
  verb.parse(std::vector<std::string>{"--backup", "auto", "--color", "-q", "a.qin"});
  EXPECT_EQ(value_of(verb, file), "a.qin");
  EXPECT_TRUE(is_given(verb, quiet));
  EXPECT_EQ(value_of(verb, color), "auto");
  EXPECT_EQ(attached_value_of(verb, backup, ".bak"), ".bak");
}

TEST(AnOption, ThatWasNotGivenHasNoValue) {
  CLI::App verb("", "show");
  add_flag(verb, quiet);
  add_value(verb, color);
  add_attached_value(verb, backup);
  verb.parse(std::vector<std::string>());
  EXPECT_FALSE(is_given(verb, quiet));
  EXPECT_EQ(value_of(verb, color), std::nullopt);
  EXPECT_TRUE(values_of(verb, color).empty());
  EXPECT_EQ(attached_value_of(verb, backup, ".bak"), std::nullopt);
}

TEST(AnOption, ForOneValueIsRefusedTheSecondTime) {
  CLI::App verb("", "show");
  add_value(verb, color);
  verb.parse(std::vector<std::string>{"auto", "--color", "never", "--color"});
  EXPECT_EQ(complaint_of<UsageError>([&] { value_of(verb, color); }),
            "--color can be given only once");
}

TEST(AFlag, TakesNoValue) {
  CLI::App verb("", "show");
  add_flag(verb, quiet);
  verb.parse(marked_arguments({"--quiet=yes"}));
  EXPECT_EQ(complaint_of<UsageError>([&] { is_given(verb, quiet); }), "--quiet takes no value");
}

}  // namespace
}  // namespace kelp::input::quill::tool
