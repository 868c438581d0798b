// Pipes that other programs open, write to and close just when they are read.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

/// A call of the program for a pipe in a folder.
class ReadOfAPipe {
 public:
  ReadOfAPipe() {
    EXPECT_EQ(mkfifo(folder_.path("pipe").c_str(), 0600), 0);
    request_.arguments = {"json", "pipe"};
    request_.folder = folder_.path();
    request_.environment = {{"LD_PRELOAD", QUILL_INP_FAILING_CALLS},
                            {"ASAN_OPTIONS", "verify_asan_link_order=0"}};
  }

  Request& request() { return request_; }

  /// Lets the shell do something before the first read.
  Outcome run_with(const std::string& command) {
    request_.environment["QUILL_INP_FAULT_AT"] = std::to_string(number_of_first_read());
    request_.environment["QUILL_INP_FAULT"] = "run " + command;
    return run_program(request_);
  }

 private:
  std::size_t number_of_first_read() const {
    const TemporaryFolder logs;
    Request request = request_;
    request.environment["QUILL_INP_CALL_LOG"] = logs.write("log", "");
    EXPECT_EQ(run_program(request).code, 2);
    std::istringstream lines(content_of(logs.path("log")));
    std::size_t number = 1;
    for (std::string line; std::getline(lines, line) && line != "read";) ++number;
    return number;
  }

  TemporaryFolder folder_;
  Request request_;
};

struct Row {
  std::string_view name;
  std::string command;
  std::string text;
};

class PipeWrittenBeforeTheFirstRead : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"WithAText", "printf '2 1\\n' > pipe", "2 1\n"},
    {"WithOneByte", "printf '#' > pipe", "#"},
    {"WithNothing", ": > pipe", ""},
};

TEST_P(PipeWrittenBeforeTheFirstRead, IsReadWhole) {
  ReadOfAPipe pipe;
  const TemporaryFolder folder;
  Request from_file = pipe.request();
  from_file.folder = folder.path();
  from_file.environment.clear();
  folder.write("pipe", GetParam().text);
  EXPECT_EQ(pipe.run_with(GetParam().command), run_program(from_file));
}

INSTANTIATE_TEST_SUITE_P(Table, PipeWrittenBeforeTheFirstRead, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(PipeThatGrowsWhileItIsRead, IsHeldToTheLimit) {
  for (const auto& [limit, is_read] : {std::pair("3", false), std::pair("4", true)}) {
    ReadOfAPipe pipe;
    pipe.request().arguments.emplace_back(std::string("--max-size=") + limit);
    EXPECT_EQ(pipe.run_with("printf '2 1\\n' > pipe").code, is_read ? 0 : 2) << limit;
  }
}

TEST(PipeThatNobodyWritesTo, IsRefused) {
  ReadOfAPipe pipe;
  EXPECT_EQ(
      pipe.run_with("true"),
      ended(2, "", "pipe: error: is a pipe, not a regular file; use '-' to read standard input\n"));
}

}  // namespace
}  // namespace kelp::input::quill::tool
