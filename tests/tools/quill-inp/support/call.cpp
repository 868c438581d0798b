#include "tools/quill-inp/support/call.hpp"

#include <gtest/gtest.h>

#include <map>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {

const char* const by_hand =
    "# Opt ( maxiter = 50 , tight )\r\n"
    "#Model=\"m1\"\r\n"
    "  0   1\r\n"
    "\r\n"
    "o 0 0 0.117176\r\n"
    "h 0  0.75695 -0.468706\r\n"
    "h 0 -0.75695 -0.468706";

const char* const two_opts =
    "#opt(maxiter=50)\n"
    "#Opt(maxiter=70) and so on\n"
    "\n"
    "XYZ a b.xyz\n"
    "XYZ c.xyz\n"
    "B 1 x\n";

Outcome refused_at(const std::string& name, int line, const std::string& message) {
  const std::string number = std::to_string(line);
  return ended(2, "",
               name + ":" + number + ": error: refused: line " + number + " " + message +
                   "; use --allow-loss to write it anyway\n");
}

void expect_outcome(const Call& call) {
  const std::map<std::string, std::string> files = {
      {"water.qin", water},
      {"by_hand.qin", by_hand},
      {"two_opts.qin", two_opts},
      {"bare.qin", "#sp\n"},
      {"water.xyz", "3\nwater\nO 0 0 0.117176\nH 0 0.75695 -0.468706\nH 0 -0.75695 -0.468706\n"},
      {"odd.xyz", "2\n\nHe 0 0 0.12345678\nD 0 0 1\n"},
  };
  const TemporaryFolder folder;
  for (const auto& [name, content] : files) folder.write(name, content);
  EXPECT_EQ(run_in(folder.path(), call.arguments, call.input), call.outcome);
  for (const auto& [name, content] : files) EXPECT_EQ(content_of(folder.path(name)), content);
  EXPECT_EQ(names_in(folder.path()).size(), files.size());
}

}  // namespace kelp::input::quill::tool
