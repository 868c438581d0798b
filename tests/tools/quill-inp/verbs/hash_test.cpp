#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

// These values never change: people keep them.
const std::string hash_of_water =
    "ddfb12f42f8db39ddae9e018c65ccd4bf83a75dda53fa033eb817d1f9adc9f5b";
const std::string hash_of_by_hand =
    "14bcc086c0d8f712bcb6fac6cf54acceedaaa025d434a93eb79ec6c17f066237";

class Hash : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"IsThatOfTheCanonicalText",
     {"hash", "water.qin", "by_hand.qin"},
     ended(0, hash_of_water + "  water.qin\n" + hash_of_by_hand + "  by_hand.qin\n", "")},
    {"OfStandardInput",
     {"hash", "-"},
     ended(0, hash_of_water + "  -\n", ""),
     "  \n# opt ( maxiter = 50 , tight )\r\n#model=m1\n0 1\nO 0 0 .117176\nh 0 0.75695 "
     "-.4687060\nH 0 -.75695 -468706e-6\n"},
    {"IsRefusedForWhatIsLost",
     {"hash", "-q", "two_opts.qin"},
     ended(2, "",
           "two_opts.qin:2: error: refused: line 2 says more than its command, and the rest would "
           "be lost: '#Opt(maxiter=70) and so on'; use --allow-loss to write it anyway\n")},
    {"CheckedAndFound",
     {"hash", "--check", "-"},
     ended(1, "water.qin: OK\nby_hand.qin: FAILED\n", ""),
     hash_of_water + "  water.qin\n\n" + hash_of_water + " *by_hand.qin"},
    {"CheckedForAFileThatIsNotThere",
     {"hash", "--check", "-"},
     ended(2, "", "a\\n\\b: error: cannot be opened: No such file or directory\n"),
     "\\" + hash_of_water + "  a\\n\\\\b\n"},
    {"CheckedAgainstAFolder",
     {"hash", "--check", "/"},
     ended(2, "", "/: error: is a folder, not a regular file; use '-' to read standard input\n")},
    {"CheckedAgainstALineThatIsNone",
     {"hash", "--check", "-"},
     ended(2, "",
           "<stdin>:2: error: expected a hash of 64 digits, two blanks and the name of an input\n"),
     "\n" + hash_of_water.substr(1) + "  water.qin\n"},
    {"CheckedAgainstALineWithoutAName",
     {"hash", "--check", "-"},
     ended(2, "",
           "<stdin>:1: error: expected a hash of 64 digits, two blanks and the name of an input\n"),
     hash_of_water + "  \n"},
};

TEST_P(Hash, OfAnInput) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Hash, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HashLines, AreThoseOfSha256sum) {
  const TemporaryFolder folder;
  for (const char* name : {"a b.qin", "c\nd\\.qin"}) folder.write(name, water);
  const Outcome lines = run_shell(folder.path(), "quill-inp hash *.qin");
  EXPECT_EQ(run_shell(folder.path(), "sha256sum *.qin"), lines);
  EXPECT_EQ(
      run_shell(folder.path(), "quill-inp hash *.qin >list; quill-inp hash --check list").code, 0);
}

}  // namespace
}  // namespace kelp::input::quill::tool
