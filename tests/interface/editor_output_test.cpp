#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/file_content.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {

namespace {

using Text = std::optional<std::string>;

template <typename Author>
void expect_writing_to_fail(const Author& author) {
  const TemporaryFolder folder;
  const std::string path = folder.path("no/such/directory/out.qin");
  try {
    author.write_file(path);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), "Failed to open QUILL input for writing: " + path);
  }
}

TEST(EditorOutput, IsTheTextOfItsDocument) {
  const QuillInput input = with_commands({flag("opt"), assignment("model", "m1")});
  EXPECT_EQ(InputEditor(input).to_string(), input.to_string());
  EXPECT_EQ(InputEditor(input).to_string(),
            "#opt\n#model = m1\n\n-1 2\nO        0.000000      0.000000      0.117300\n\n"
            "B 1 2\nas it stands\n");
  EXPECT_EQ(InputEditor{QuillInput()}.to_string(), "");
}

TEST(EditorOutput, ReplacesAFile) {
  const TemporaryFolder folder;
  const std::string path =
      folder.write("out.qin", "something else, which is rather longer than what comes next");
  InputEditor editor{QuillInput()};
  editor.set_flag("opt");
  editor.write_file(path);
  EXPECT_EQ(file_content(path), Text("#opt\n"));
}

TEST(EditorOutput, FailsWithThePathWhenTheFileCannotBeOpened) {
  const InputEditor editor(with_commands({flag("opt")}));
  expect_writing_to_fail(editor);
  EXPECT_EQ(editor.document(), with_commands({flag("opt")}));
}

TEST(EditorOutput, CarriesAChangeFromFileToFile) {
  const TemporaryFolder folder;
  const std::string path =
      folder.write("water.qin",
                   "#opt(maxiter=50)\n#Model=\"m1\"\n0 1\no 0 0 0.1173\nh 0 0.7572 -0.4692\n"
                   "h 0 -0.7572 -0.4692\nB 1 2\n");
  ParseResult read = parse_file(path);
  EXPECT_EQ(read.warnings, std::vector<std::string>());

  InputEditor editor(std::move(read.input));
  editor.set_parameter("opt", "maxiter", "100", 0);
  editor.write_file(path);

  EXPECT_EQ(file_content(path), Text("#opt(maxiter=100)\n#Model = m1\n\n0 1\n"
                                     "O        0.000000      0.000000      0.117300\n"
                                     "H        0.000000      0.757200     -0.469200\n"
                                     "H        0.000000     -0.757200     -0.469200\n\nB 1 2\n"));
  const ParseResult read_again = parse_file(path);
  QuillInput expected = editor.document();
  EXPECT_EQ(read_again, ParseResult(std::move(expected), true));
}

TEST(BuilderOutput, IsTheTextOfItsDocument) {
  InputBuilder builder;
  EXPECT_EQ(builder.to_string(), QuillInput().to_string());
  EXPECT_EQ(builder.to_string(), "");
  builder.set_task("opt", {{"maxiter", "50"}, {"tight"}}).set_xyz_file("a.xyz");
  EXPECT_EQ(builder.to_string(), builder.document().to_string());
  EXPECT_EQ(builder.to_string(), "#opt(maxiter=50, tight)\n\nXYZ a.xyz\n");
}

TEST(BuilderOutput, MakesAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.path("out.qin");
  InputBuilder().set_flag("opt").set_post_file("out.dat").write_file(path);
  EXPECT_EQ(file_content(path), Text("#opt\n\nPOST out.dat\n"));
}

TEST(BuilderOutput, OfAnEmptyDocumentIsAnEmptyFile) {
  const TemporaryFolder folder;
  const std::string path = folder.path("out.qin");
  InputBuilder().write_file(path);
  EXPECT_EQ(file_content(path), Text(""));
}

TEST(BuilderOutput, FailsWithThePathWhenTheFileCannotBeOpened) {
  InputBuilder builder;
  builder.set_flag("opt");
  expect_writing_to_fail(builder);
  EXPECT_EQ(builder.document(), QuillInput({flag("opt")}));
}

}  // namespace

}  // namespace kelp::input::quill
