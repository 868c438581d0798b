#include "quill-inp/batch/name_census.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NamesInSeveralFiles : public testing::TestWithParam<unsigned> {
 protected:
  std::vector<std::string> found() const { return names_in_several_files(files_, GetParam()); }
  void add(const std::string& text) {
    files_.push_back(folder_.write(std::to_string(files_.size()) + ".qin", text));
  }

  TemporaryFolder folder_;
  std::vector<std::string> files_;
};

TEST_P(NamesInSeveralFiles, AreSortedAndInCanonicalForm) {
  add("#solvent=a\n#Grid(b)\n#one\n0 1\nHe 0 0 0\n");
  add("\n  #SOLVENT\n\n#two\n#two\n");
  add("#grid\n#solvent\n");
  EXPECT_THAT(found(), ElementsAre("grid", "solvent"));
}

TEST_P(NamesInSeveralFiles, AreThoseOfHeadersAlone) {
  add("#a\r\n0 1\nHe 0 0 0\n#b\n");
  add("#a\n0 1\nHe 0 0 0\n#b\n");
  EXPECT_THAT(found(), ElementsAre("a"));
}

TEST_P(NamesInSeveralFiles, CountAFileThatIsNamedTwiceOnce) {
  add("#a\n");
  files_.push_back(files_.front());
  EXPECT_THAT(found(), IsEmpty());
}

TEST_P(NamesInSeveralFiles, CountAFileUnderTwoSpellingsOnce) {
  add("#a\n");
  files_.push_back(folder_.path(".") + "/0.qin");
  EXPECT_THAT(found(), IsEmpty());
}

TEST_P(NamesInSeveralFiles, LeaveThePipeOfAWriterClosed) {
  const std::string pipe = folder_.path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  // This end would let a writer begin, and lose it again.
  const int notice = inotify_init1(IN_NONBLOCK);
  ASSERT_GE(inotify_add_watch(notice, pipe.c_str(), IN_OPEN), 0);
  files_ = {pipe};
  add("#a\n");
  add("#a\n");
  EXPECT_THAT(found(), ElementsAre("a"));
  inotify_event event = {};
  EXPECT_EQ(read(notice, &event, sizeof event), -1) << "the pipe was opened";
  close(notice);
}

TEST_P(NamesInSeveralFiles, PassOverWhatIsNotARegularFile) {
  add("#a\n");
  add("#a\n");
  files_.insert(files_.begin(),
                {folder_.path("missing"), folder_.path(), folder_.path("pipe"), "-"});
  ASSERT_EQ(mkfifo(folder_.path("pipe").c_str(), 0600), 0);
  EXPECT_THAT(found(), ElementsAre("a"));
}

TEST_P(NamesInSeveralFiles, AreFoundInMoreFilesThanAreReadAtOnce) {
  for (int i = 0; i < 2100; ++i) add("#name" + std::to_string(i / 2) + "\n");
  std::vector<std::string> expected;
  for (int i = 0; i < 1050; ++i) expected.push_back("name" + std::to_string(i));
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(found(), expected);
}

TEST_P(NamesInSeveralFiles, AreNoneOfNoFiles) { EXPECT_THAT(found(), IsEmpty()); }

INSTANTIATE_TEST_SUITE_P(Threads, NamesInSeveralFiles, testing::Values(1U, 2U),
                         [](const auto& threads) { return std::to_string(threads.param); });

}  // namespace
}  // namespace kelp::input::quill::tool
