#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

#include "support/aliasing.hpp"
#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

// A text view passed to an editor may point into the editor's own document: the result is the one
// that a copy of the text would have given.

namespace kelp::input::quill {

namespace {

/// A call with one text; for removals, it returns their result.
struct TextCall {
  std::string_view name;
  std::function<bool(InputEditor&, std::string_view)> call;
  Symbols symbols = Symbols::Included;
};

void PrintTo(const TextCall& row, std::ostream* out) { *out << row.name; }

template <typename Edit>
std::function<bool(InputEditor&, std::string_view)> edit(Edit operation) {
  return [operation](InputEditor& editor, std::string_view text) {
    operation(editor, text);
    return false;
  };
}

const HeaderCommand& first_command(const InputEditor& editor) {
  return editor.document().commands.front();
}

class AViewIntoTheDocument : public testing::TestWithParam<TextCall> {};

void expect_as_if_copied(const TextCall& row, const Setting& setting, std::size_t i) {
  InputEditor editor = make_editor(setting);
  const bool answer = row.call(editor, views_of(editor.document(), row.symbols)[i]);

  InputEditor other = make_editor(setting);
  const std::string copy(views_of(other.document(), row.symbols)[i]);
  EXPECT_EQ(row.call(other, copy), answer) << "'" << copy << "', " << to_text(setting);
  EXPECT_EQ(editor.document(), other.document()) << "'" << copy << "', " << to_text(setting);
}

TEST_P(AViewIntoTheDocument, IsTakenAsIfItHadBeenCopied) {
  const TextCall& row = GetParam();
  for (const Setting& setting : every_setting()) {
    const InputEditor untouched = make_editor(setting);
    const std::size_t count = views_of(untouched.document(), row.symbols).size();
    ASSERT_GT(count, 30U);
    for (std::size_t i = 0; i < count; ++i) expect_as_if_copied(row, setting, i);
  }
}

const TextCall header_rows[] = {
    {"AsTheNameOfAFlag",
     edit([](InputEditor& editor, std::string_view text) { editor.set_flag(text); })},
    {"AsTheNameOfAnAssignment",
     edit([](InputEditor& editor, std::string_view text) { editor.set_assignment(text, "v"); })},
    {"AsTheValueOfAKnownCommand", edit([](InputEditor& editor, std::string_view text) {
       editor.set_assignment(first_command(editor).name, text);
     })},
    {"AsTheValueOfANewCommand", edit([](InputEditor& editor, std::string_view text) {
       editor.set_assignment("unheard-of", text);
     })},
    {"AsNameAndValueOfAnAssignment",
     edit([](InputEditor& editor, std::string_view text) { editor.set_assignment(text, text); })},
    {"AsTheModel",
     edit([](InputEditor& editor, std::string_view text) { editor.set_model(text); })},
    {"AsTheDevice",
     edit([](InputEditor& editor, std::string_view text) { editor.set_device(text); })},
    {"AsTheNameOfATask",
     edit([](InputEditor& editor, std::string_view text) { editor.set_task(text); })},
    {"AsTheNameOfATaskThatGetsTheFirstCommandsParameters",
     edit([](InputEditor& editor, std::string_view text) {
       editor.set_task(text, first_command(editor).parameters);
     })},
};

INSTANTIATE_TEST_SUITE_P(Header, AViewIntoTheDocument, testing::ValuesIn(header_rows),
                         row_name<TextCall>);

const TextCall parameter_rows[] = {
    {"AsTheCommandOfAParameter", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(text, "p", "v");
     })},
    {"AsTheCommandOfAParameterAndASecondOccurrence",
     edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(text, "p", "v", 1);
     })},
    {"AsAParameterNameOfAKnownCommand", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(first_command(editor).name, text, "v");
     })},
    {"AsAParameterNameOfAMissingOccurrence", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(first_command(editor).name, text, "v", 9);
     })},
    {"AsAParameterNameOfANewCommand", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter("unheard-of", text, "v");
     })},
    {"AsAValueOfAKnownParameter", edit([](InputEditor& editor, std::string_view text) {
       const HeaderCommand& command = first_command(editor);
       editor.set_parameter(command.name, command.parameters.front().name, text);
     })},
    {"AsAValueOfANewParameter", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(first_command(editor).name, "unheard-of", text);
     })},
    {"AsAValueOfAParameterOfANewCommand", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter("unheard-of", "p", text);
     })},
    {"AsEverythingOfAParameter", edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(text, text, text);
     })},
    {"AsEverythingOfAParameterOfAMissingOccurrence",
     edit([](InputEditor& editor, std::string_view text) {
       editor.set_parameter(text, text, text, 9);
     })},
};

INSTANTIATE_TEST_SUITE_P(Parameters, AViewIntoTheDocument, testing::ValuesIn(parameter_rows),
                         row_name<TextCall>);

const TextCall removal_rows[] = {
    {"AsTheCommandOfAParameterToRemove",
     [](InputEditor& editor, std::string_view text) {
       return editor.remove_parameter(text, first_command(editor).parameters.front().name);
     }},
    {"AsAParameterToRemove",
     [](InputEditor& editor, std::string_view text) {
       return editor.remove_parameter(first_command(editor).name, text);
     }},
    {"AsAParameterToRemoveFromTheSecondOccurrence",
     [](InputEditor& editor, std::string_view text) {
       return editor.remove_parameter(first_command(editor).name, text, 1);
     }},
    {"AsCommandsToRemove",
     [](InputEditor& editor, std::string_view text) { return editor.remove_command(text); }},
    {"AsOneCommandToRemove",
     [](InputEditor& editor, std::string_view text) { return editor.remove_command(text, 0); }},
};

INSTANTIATE_TEST_SUITE_P(Removals, AViewIntoTheDocument, testing::ValuesIn(removal_rows),
                         row_name<TextCall>);

const TextCall path_rows[] = {
    {"AsAnXyzFile",
     edit([](InputEditor& editor, std::string_view text) { editor.set_xyz_file(text); })},
    {"AsAnXyzTrajectory",
     edit([](InputEditor& editor, std::string_view text) { editor.set_xyz_trajectory(text); }),
     Symbols::LeftOut},
    {"AsAPostFile",
     edit([](InputEditor& editor, std::string_view text) { editor.set_post_file(text); })},
};

INSTANTIATE_TEST_SUITE_P(Paths, AViewIntoTheDocument, testing::ValuesIn(path_rows),
                         row_name<TextCall>);

TEST(AViewIntoTheDocument, IsTakenAsIfItHadBeenCopiedByTheQueries) {
  for (const Setting& setting : every_setting()) {
    const InputEditor editor = make_editor(setting);
    for (const std::string_view text : views_of(editor.document(), Symbols::Included)) {
      const std::string copy(text);
      EXPECT_EQ(editor.has_command(text), editor.has_command(copy));
      EXPECT_EQ(editor.get_assignment(text), editor.get_assignment(copy));
      EXPECT_EQ(editor.get_parameter(text, text), editor.get_parameter(copy, copy));
    }
  }
}

using TwoTextCall = void (*)(InputEditor&, std::string_view, std::string_view);

void expect_pairs_as_if_copied(TwoTextCall call, const Setting& setting) {
  const InputEditor untouched = make_editor(setting);
  const std::size_t count = views_of(untouched.document(), Symbols::Included).size();
  for (std::size_t i = 0; i < count; ++i) {
    InputEditor editor = make_editor(setting);
    InputEditor other = make_editor(setting);
    for (std::size_t j = 0; j < count; j += 13) {
      const auto views = views_of(editor.document(), Symbols::Included);
      const auto other_views = views_of(other.document(), Symbols::Included);
      if (i >= views.size() || j >= views.size()) break;  // an earlier call has removed parameters
      const std::string first(other_views[i]);
      const std::string second(other_views[j]);
      call(editor, views[i], views[j]);
      call(other, first, second);
      ASSERT_EQ(editor.document(), other.document())
          << "'" << first << "' and '" << second << "', " << to_text(setting);
    }
  }
}

TEST(TwoViewsIntoTheDocument, AreTakenAsIfTheyHadBeenCopied) {
  for (const Setting& setting : every_setting()) {
    expect_pairs_as_if_copied([](InputEditor& editor, std::string_view name,
                                 std::string_view value) { editor.set_assignment(name, value); },
                              setting);
    expect_pairs_as_if_copied(
        [](InputEditor& editor, std::string_view name, std::string_view value) {
          editor.set_parameter(name, value, name);
        },
        setting);
    expect_pairs_as_if_copied(
        [](InputEditor& editor, std::string_view name, std::string_view value) {
          editor.set_parameter(value, value, name, 2);
        },
        setting);
  }
}

}  // namespace

}  // namespace kelp::input::quill
