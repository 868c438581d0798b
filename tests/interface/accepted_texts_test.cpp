#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

// Null pointers and numbers are refused where a text is taken; whatever is a text is not.

namespace kelp::input::quill {

namespace {

struct LikeAView {
  operator std::string_view() const { return "opt"; }
};

struct LikeAString {
  operator std::string() const { return "opt"; }
};

/// Calls every function of the editor, and of what it reads and looks up, with a text "opt".
template <typename Text>
void expect_taken_as_view(const Text& text) {
  InputEditor editor(parse_string(text).input);
  editor.clear_post_commands();
  editor.set_task(text, {{"x", "y"}});
  editor.set_parameter(text, text, text);
  EXPECT_EQ(editor.get_parameter(text, text), "opt");
  EXPECT_TRUE(editor.remove_parameter(text, text));
  editor.set_assignment(text, text);
  EXPECT_EQ(editor.get_assignment(text), "opt");
  EXPECT_TRUE(editor.has_command(text));
  EXPECT_TRUE(editor.document().has_command(text));
  EXPECT_NE(editor.document().find_command(text), nullptr);
  EXPECT_TRUE(editor.remove_command(text));
  editor.set_flag(text);
  editor.set_model(text);
  editor.set_device(text);
  editor.set_xyz_trajectory(text);
  editor.set_xyz_file(text);
  editor.set_post_file(text);
  EXPECT_EQ(editor.to_string(), "#opt\n#model = opt\n#device = opt\n\nXYZ opt\n\nPOST opt\n");
  EXPECT_EQ(normalize_command_name(text), "opt");
  EXPECT_EQ(find_parameter_index({"x", {}, {}, {{"opt"}}}, text), 0U);
  EXPECT_EQ(parse_lines(text).lines.size(), 1U);
}

/// Calls every function of the builder, and the others that store a string, with a text "opt".
template <typename Text>
void expect_taken_as_string(const Text& text) {
  InputBuilder builder;
  builder.set_flag(text).set_task(text, {{"x", "y"}}).set_task_parameter(text, text, text);
  builder.set_assignment(text, text).set_model(text).set_device(text);
  builder.set_xyz_trajectory(text).set_xyz_file(text).set_post_file(text);
  EXPECT_EQ(builder.to_string(),
            "#opt = opt\n#model = opt\n#device = opt\n\nXYZ opt\n\nPOST opt\n");
  QuillInput input;
  input.upsert_command(text);
  EXPECT_EQ(input.to_string(), "#opt\n");
  EXPECT_FALSE(parse_file(text).ok);
  EXPECT_THROW(input.write_file(std::string("missing/") + std::string(text)), std::runtime_error);
}

TEST(AcceptedTexts, AreLiteralsArraysPointersStringsAndViews) {
  char array[] = "opt";
  char* const pointer = array;
  const char* const constant = array;
  const std::string string = "opt";
  expect_taken_as_view("opt");
  expect_taken_as_view(array);
  expect_taken_as_view(pointer);
  expect_taken_as_view(constant);
  expect_taken_as_view(string);
  expect_taken_as_view(std::string_view(string));
  expect_taken_as_string("opt");
  expect_taken_as_string(array);
  expect_taken_as_string(pointer);
  expect_taken_as_string(constant);
  expect_taken_as_string(string);
}

TEST(AcceptedTexts, AreWhateverConvertsToThem) {
  expect_taken_as_view(LikeAView());
  expect_taken_as_string(LikeAString());
}

TEST(AcceptedTexts, AreBraceLists) {
  InputEditor editor(parse_string({}).input);
  editor.set_assignment({"model"}, {"m12", 2});
  editor.set_assignment("device", {});
  editor.set_parameter({"opt"}, {"basis"}, {});
  editor.set_task({"freq"});
  editor.set_post_file({});
  EXPECT_EQ(editor.to_string(), "#model = m1\n#device = \n#opt(basis=)\n#freq\n\nPOST \n");
  EXPECT_EQ(InputBuilder()
                .set_assignment({"model"}, {"m12", 2})
                .set_assignment("device", {})
                .set_task_parameter({"opt"}, {"basis"}, {})
                .set_task({"freq"}, {})
                .set_post_file({})
                .document(),
            editor.document());
  EXPECT_EQ(editor.document().find_command({}), nullptr);
  EXPECT_EQ(normalize_command_name({}), "");
}

TEST(AcceptedTexts, LeaveTheTypesAsTheyAre) {
  static_assert(!std::is_convertible_v<int, CommandParameter>);
  static_assert(!std::is_convertible_v<int, HeaderCommand>);
  EXPECT_EQ((std::vector<CommandParameter>{3}).size(), 3U);
  EXPECT_EQ((std::vector<HeaderCommand>{3}).size(), 3U);
  void (InputEditor::*const set_flag)(std::string_view) = &InputEditor::set_flag;
  InputEditor editor({});
  (editor.*set_flag)("opt");
  EXPECT_EQ(editor.to_string(), "#opt\n");
}

TEST(AcceptedTexts, ReachFreeFunctionsThatArePassedOnByName) {
  const std::string text = "#opt";
  EXPECT_EQ(std::async(std::launch::deferred, parse_string, text).get().input,
            QuillInput({{"opt"}}));
  EXPECT_EQ(std::async(std::launch::deferred, parse_lines, text).get().lines.size(), 1U);
  EXPECT_FALSE(std::async(std::launch::deferred, parse_file, "missing").get().ok);
  std::vector<std::string> names = {"#OPT", " Freq"};
  std::transform(names.begin(), names.end(), names.begin(), normalize_command_name);
  EXPECT_EQ(names, (std::vector<std::string>{"opt", "freq"}));
}

}  // namespace

}  // namespace kelp::input::quill
