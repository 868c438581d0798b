#include "quill-inp/session/reporter.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {
namespace {

TEST(Reporter, WritesPathLineSeverityAndMessage) {
  std::ostringstream stream;
  Reporter reporter(stream, false, false);
  reporter.error({"a.qin", {}}, "bad");
  reporter.warning({"a.qin", 3}, "odd");
  reporter.note({"a.qin", 12}, "so");
  EXPECT_EQ(stream.str(), "a.qin: error: bad\na.qin:3: warning: odd\na.qin:12: note: so\n");
}

TEST(Reporter, IsQuietAboutAllButErrors) {
  std::ostringstream stream;
  Reporter reporter(stream, true, false);
  reporter.error({"a", {}}, "bad");
  reporter.warning({"a", {}}, "odd");
  reporter.note({"a", {}}, "so");
  EXPECT_EQ(stream.str(), "a: error: bad\n");
}

TEST(Reporter, ColoursTheSeverity) {
  std::ostringstream stream;
  Reporter reporter(stream, false, true);
  reporter.error({"a", {}}, "bad");
  reporter.warning({"a", {}}, "odd");
  reporter.note({"a", {}}, "so");
  EXPECT_EQ(stream.str(),
            "a: \x1B[1;31merror:\x1B[m bad\na: \x1B[1;35mwarning:\x1B[m odd\n"
            "a: \x1B[1;36mnote:\x1B[m so\n");
}

TEST(Reporter, ShowsWhatATerminalWouldObey) {
  std::ostringstream stream;
  Reporter reporter(stream, false, false);
  reporter.error({"a\nb", {}}, "bad \x1B[2J");
  EXPECT_EQ(stream.str(), "a\\nb: error: bad \\x1b[2J\n");
}

TEST(Reporter, GroupsNoDigits) {
  class Grouping : public std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  std::ostringstream stream;
  stream.imbue(std::locale(std::locale::classic(), new Grouping));
  Reporter reporter(stream, false, false);
  reporter.error({"a", 1234567}, "bad");
  EXPECT_EQ(stream.str(), "a:1234567: error: bad\n");
}

TEST(ExitCode, TheWorstWins) {
  EXPECT_EQ(worse_of(ExitCode::Done, ExitCode::No), ExitCode::No);
  EXPECT_EQ(worse_of(ExitCode::No, ExitCode::Done), ExitCode::No);
  EXPECT_EQ(worse_of(ExitCode::Trouble, ExitCode::No), ExitCode::Trouble);
  EXPECT_EQ(worse_of(ExitCode::Done, ExitCode::Done), ExitCode::Done);
}

}  // namespace
}  // namespace kelp::input::quill::tool
