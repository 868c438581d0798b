// Calls that write files and run out of memory, at every single allocation that is made for a file:
// for this allocation alone, and for good. With several threads, the numbers of the allocations are
// not the same in every run, and what must hold is.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/folder_texts.hpp"
#include "tools/quill-inp/support/metered_call.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

/// A call, with names of files relative to the folder where it works, also those in its input.
struct WritingRow {
  std::string_view name;
  std::vector<std::string> arguments;
  std::string input;
};

void PrintTo(const WritingRow& row, std::ostream* stream) { *stream << row.name; }

/// Puts the path of the folder in front of every name that begins with "./".
std::string in_folder(const TemporaryFolder& folder, std::string text) {
  const std::string path = folder.path() + "/";
  for (std::size_t at = 0; (at = text.find("./", at)) != std::string::npos; at += path.size())
    text.replace(at, 2, path);
  return text;
}

class ShortageWhileWriting : public testing::TestWithParam<std::tuple<WritingRow, Shortage>> {
 protected:
  static Shortage shortage() { return std::get<Shortage>(GetParam()); }

  /// Runs the call on these files alone, and changes them to what is there then.
  MeteredCall run_on(FolderTexts& files, std::uint64_t failing) const {
    const WritingRow& row = std::get<WritingRow>(GetParam());
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
      std::filesystem::remove(entry.path());
    for (const auto& [name, text] : files) folder_.write(name, text);
    std::vector<std::string> arguments;
    for (const std::string& argument : row.arguments)
      arguments.push_back(in_folder(folder_, argument));
    MeteredCall call = run_failing(arguments, in_folder(folder_, row.input), failing, shortage());
    files = texts_in(folder_.path());
    return call;
  }

  /// "b.qin" has a mend that is safe.
  const FolderTexts before_ = {{"a.qin", water}, {"b.qin", "\xEF\xBB\xBF#opt\n0 1\nHe 0 0 0\n"}};

 private:
  TemporaryFolder folder_;
};

bool ends_with(const std::string& text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

TEST_P(ShortageWhileWriting, LeavesEveryFileOldOrNewAndIsTold) {
  FolderTexts after = before_;
  const MeteredCall undisturbed = run_on(after, 0);
  ASSERT_EQ(undisturbed.code, 0) << undisturbed.err;
  ASSERT_NE(after, before_);
  const std::string_view message =
      shortage() == Shortage::Lasting ? "quill-inp: error: out of memory\n" : ": out of memory\n";
  int failures = 0;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    FolderTexts files = before_;
    const MeteredCall call = run_on(files, i);
    expect_old_or_new(files, before_, after);
    if (call.code == 0) {
      ASSERT_EQ(files, after) << i;
      ASSERT_EQ(call.err, undisturbed.err) << i;
      continue;
    }
    ASSERT_EQ(call.code, 2) << i;
    ASSERT_TRUE(ends_with(call.err, message)) << i << '\n' << call.err;
    ++failures;
  }
  EXPECT_GT(failures, 10);
}

const WritingRow writing_rows[] = {
    {"Sweep",
     {"sweep", "-q", "-", "model=[m2,m3]", "-o", "./{model}.qin", "--manifest", "./list.tsv"},
     water},
    {"SweepSideBySide",
     {"sweep", "-q", "-j2", "-", "model=[m2,m3,m4]", "-o", "./{model}.qin"},
     water},
    {"LintThatMends", {"lint", "-q", "--fix", "--fail-on=never", "--files-from=-"}, "./b.qin\n"},
    {"LintThatMendsSideBySide",
     {"lint", "-q", "-j2", "--fix", "--fail-on=never", "--files-from=-"},
     "./a.qin\n./b.qin\n"},
    {"SetSideBySide",
     {"set", "-q", "-i", "-j2", "--allow-loss", "--files-from=-", "model=m2"},
     "./a.qin\n./b.qin\n"},
    {"Output", {"set", "-q", "-", "model=m2", "-o", "./new.qin"}, water},
};

INSTANTIATE_TEST_SUITE_P(Of, ShortageWhileWriting,
                         testing::Combine(testing::ValuesIn(writing_rows),
                                          testing::Values(Shortage::Short, Shortage::Lasting)),
                         [](const auto& row) {
                           return std::string(std::get<WritingRow>(row.param).name) +
                                  (std::get<Shortage>(row.param) == Shortage::Short ? "ForOnce"
                                                                                    : "ForGood");
                         });

}  // namespace
}  // namespace kelp::input::quill::tool
