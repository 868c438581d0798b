// Calls with several threads in this process, which a run under the thread sanitizer looks at.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "quill-inp/run.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

constexpr int number_of_files = 60;

std::string run_here(std::vector<std::string> arguments, const TemporaryFolder& folder) {
  for (int i = 0; i < number_of_files; ++i)
    arguments.push_back(folder.path(std::to_string(i) + ".qin"));
  std::istringstream in("#model = m1\n0 1\n");
  std::ostringstream out;
  std::ostringstream err;
  const int code = run(arguments, {in, out, err});
  return std::to_string(code) + "\n" + out.str() + err.str();
}

TEST(ToolThreads, ShareNothingThatChanges) {
  ASSERT_TRUE(use_memory_for_temporary_files());
  const std::vector<std::vector<std::string>> calls = {
      {"show", "-"},
      {"show", "--json"},
      {"fmt", "--diff", "--color=always"},
      {"get", "-k", "opt.maxiter", "-"},
      {"json"},
      {"lint", "-"},
      {"set", "-i", "--backup", "-", "opt.maxiter=9"},
      {"add", "-i", "--bond", "1,2"},
      {"unset", "-i", "-k", "model"},
  };
  for (const std::vector<std::string>& call : calls) {
    std::string outputs[2];
    for (const unsigned threads : {1U, 2U}) {
      const TemporaryFolder folder;
      for (int i = 0; i < number_of_files; ++i)
        folder.write(std::to_string(i) + ".qin", i % 5 == 4 ? "#a(b) c\n0 1 x\n" : water);
      std::vector<std::string> arguments = call;
      arguments.push_back("-j" + std::to_string(threads));
      std::string& output = outputs[threads - 1];
      output = run_here(arguments, folder);
      for (std::size_t at = 0; (at = output.find(folder.path())) != std::string::npos;)
        output.erase(at, folder.path().size());
    }
    EXPECT_EQ(outputs[1], outputs[0]) << call.front();
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
