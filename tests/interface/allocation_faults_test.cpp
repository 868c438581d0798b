#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/fail_each_allocation.hpp"
#include "support/file_content.hpp"
#include "support/long_document.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

// Documents, the writer and the reader, with each allocation failing in turn: the result is
// complete, or there is none.

namespace kelp::input::quill {

namespace {

const std::string opt = longer(" #Opt");
const std::string fresh = longer("fresh");

const GeometryKind every_kind[] = {GeometryKind::None, GeometryKind::Atoms, GeometryKind::XyzFile,
                                   GeometryKind::XyzTrajectory};

/// A text with every form of line and every warning, in which every word is too long to be stored
/// inside a string object.
std::string long_text(const std::string& coordinates) {
  std::string text = "#" + longer("flag") + "\n#" + longer("assignment") + "='" + longer("v") +
                     "'\n#" + std::string(40, 'o') + "(" + longer("a") + "=" + longer("b") + ", " +
                     longer("c") + ") and more\n#\n#=" + longer("v") + "\n#open(" + longer("a") +
                     "\n\n" + std::string(30, '0') + " 1\n" + coordinates;
  for (const char* const line : {"C 1", "B 1 2", "A 1 2 3", "D 1 2 3 4", "S 1 2 1.5 10", "B 1 x"})
    text += "  " + std::string(line) + std::string(40, ' ') + "\r\n";
  return text + "POST " + longer("out.dat") + "\n" + longer("a raw line") + "\n";
}

const std::string texts[] = {
    long_text("h 0.00000000000000000000 1.00000000000000000000 -1e-100\n" + std::string(20, 'q') +
              " 1 2 3\n"),
    long_text("XYZ " + longer("a.xyz") + "\nxyz\nXyz " + longer("b.xyz") + "\n"),
    long_text("XYZTRAJ " + longer("t.xyz") + "\n"),
    longer("nothing but a raw line"),
    "",
};

TEST(AFailedAllocation, LeavesNoHalfACopyOfADocument) {
  const QuillInput document = long_document(GeometryKind::Atoms);
  EXPECT_GT(expect_whole_answer_or_none([&] { return document; }), 0U);
}

TEST(AFailedAllocation, LeavesNoHalfAnAnswerOfADocument) {
  const QuillInput document = long_document(GeometryKind::Atoms);
  const HeaderCommand& first = document.commands.front();
  const std::string maxiter = longer("MaxIter");
  EXPECT_GT(expect_whole_answer_or_none([&] { return document.find_command(opt, 1); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return document.find_command(fresh, 0); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return document.has_command(opt); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return document.has_task_command(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return document.command_names(); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return find_parameter_index(first, maxiter); }), 0U);
  EXPECT_GT(expect_whole_answer_or_none([&] { return normalize_command_name(opt); }), 0U);
}

/// Expects a change of a document to be complete, or not to have happened.
template <typename Change>
void expect_whole_change_or_none(Change change) {
  const QuillInput before = long_document(GeometryKind::Atoms);
  QuillInput after = before;
  change(after);
  const std::uint64_t failures =
      fail_each_allocation([&] { return before; }, change,
                           [&](const QuillInput& document, std::uint64_t failing) {
                             EXPECT_EQ(document, before) << "allocation " << failing;
                           },
                           [&](const QuillInput& document) { EXPECT_EQ(document, after); });
  EXPECT_GT(failures, 0U);
}

TEST(AFailedAllocation, LeavesADocumentAsItWas) {
  expect_whole_change_or_none([](QuillInput& document) { document.upsert_command(opt); });
  expect_whole_change_or_none([](QuillInput& document) { document.upsert_command(fresh); });
  expect_whole_change_or_none([](QuillInput& document) { document.remove_command(opt); });
  expect_whole_change_or_none([](QuillInput& document) { document.remove_command(fresh); });
  expect_whole_change_or_none([](QuillInput& document) { document.remove_command(opt, 0); });
  expect_whole_change_or_none([](QuillInput& document) { document.remove_command(opt, 1); });
  expect_whole_change_or_none([](QuillInput& document) { document.remove_command(opt, 2); });
}

TEST(AFailedAllocation, LeavesNoHalfATextOfADocument) {
  for (const GeometryKind kind : every_kind) {
    const QuillInput document = long_document(kind);
    EXPECT_GT(expect_whole_answer_or_none([&] { return document.to_string(); }), 0U);
  }
}

TEST(AFailedAllocation, LeavesNoHalfATextOfAPiece) {
  const QuillInput document = long_document(GeometryKind::Atoms);
  for (const HeaderCommand& command : document.commands)
    EXPECT_GT(expect_whole_answer_or_none([&] { return to_string(command); }), 0U);
  const PostCommand scan{PostCommandKind::Scan, std::vector<int>(20, -123456), -1.23456e-100, -10};
  EXPECT_GT(expect_whole_answer_or_none([&] { return to_string(scan); }), 0U);
  for (const GeometryKind kind : every_kind) {
    GeometryBlock geometry = document.geometry;
    geometry.kind = kind;
    geometry.charge = -2000000000;
    geometry.multiplicity = 2000000000;
    EXPECT_GT(expect_whole_answer_or_none([&] { return to_string(geometry); }), 0U);
  }
}

template <typename Author>
void expect_whole_file_or_none(const Author& author) {
  const std::optional<std::string> whole = author.to_string();
  const std::optional<std::string> earlier = "an earlier file";
  const TemporaryFolder folder;
  bool was_emptied = false;
  const std::uint64_t failures = fail_each_allocation(
      [&] { return folder.write("out.qin", *earlier); },
      [&](const std::string& path) { author.write_file(path); },
      [&](const std::string& path, std::uint64_t failing) {
        const std::optional<std::string> content = file_content(path);
        EXPECT_TRUE(content == earlier || content == "") << "allocation " << failing;
        was_emptied = was_emptied || content == "";
      },
      [&](const std::string& path) { EXPECT_EQ(file_content(path), whole); });
  EXPECT_GT(failures, 0U);
  EXPECT_TRUE(was_emptied) << "the file is opened, and emptied by that, before the text is made";
}

TEST(RemovingEveryCommandOfAName, TakesOneAllocationForItsListOfMatches) {
  QuillInput input;
  input.commands.assign(1000, HeaderCommand("opt"));
  const AllocationWindow window;
  EXPECT_TRUE(input.remove_command("opt"));
  EXPECT_EQ(window.allocations(), 1U);
}

TEST(AFailedAllocation, LeavesNoHalfAFile) {
  const QuillInput document = long_document(GeometryKind::Atoms);
  expect_whole_file_or_none(document);
  expect_whole_file_or_none(InputEditor(document));
  InputBuilder builder;
  builder.set_task(opt).set_geometry(document.geometry.atoms).set_post_file(fresh);
  expect_whole_file_or_none(builder);
}

TEST(AFailedAllocation, LeavesNoHalfAMessageOfAFileThatCannotBeWritten) {
  const TemporaryFolder folder;
  const std::string path = folder.path(longer("no/such/directory/"));
  const QuillInput document = long_document(GeometryKind::Atoms);
  const auto failure = [&]() -> std::string {
    try {
      document.write_file(path);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "written";
  };
  EXPECT_EQ(failure(), "Failed to open QUILL input for writing: " + path);
  EXPECT_GT(expect_whole_answer_or_none(failure), 0U);
}

TEST(AFailedAllocation, LeavesNoHalfADocumentReadFromAText) {
  for (const std::string& text : texts) {
    EXPECT_GT(expect_whole_answer_or_none([&] { return parse_string(text); }), 0U) << text;
    EXPECT_GT(expect_whole_answer_or_none([&] { return parse_lines(text).lines; }), 0U) << text;
  }
}

TEST(AFailedAllocation, LeavesNoHalfADocumentReadFromAFile) {
  const TemporaryFolder folder;
  for (const std::string& text : texts) {
    const std::string path = folder.write("in.qin", text);
    EXPECT_EQ(parse_file(path), parse_string(text));
    EXPECT_GT(expect_whole_answer_or_none([&] { return parse_file(path); }), 0U) << text;
  }
}

TEST(AFailedAllocation, LeavesNoHalfADocumentReadFromALargeFile) {
  const TemporaryFolder folder;
  const std::string path =
      folder.write("in.qin", "#opt\n" + std::string(1'000'000, ' ') + "\nH 0 0 0\n");
  EXPECT_GT(expect_whole_answer_or_none([&] { return parse_file(path); }), 0U);
}

TEST(AFailedAllocation, LeavesNoHalfAMessageOfAFileThatCannotBeRead) {
  const TemporaryFolder folder;
  for (const std::string& path : {folder.path(), folder.path("missing")}) {
    EXPECT_FALSE(parse_file(path).ok);
    EXPECT_GT(expect_whole_answer_or_none([&] { return parse_file(path); }), 0U);
  }
}

}  // namespace

}  // namespace kelp::input::quill
