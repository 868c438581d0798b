// Calls that run out of memory, at every single allocation that is made for a file.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <istream>
#include <map>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "quill-inp/run.hpp"
#include "support/failing_allocator.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

/// Standard input, which takes down how many allocations there were before it was read: what comes
/// before belongs to the command line, and not to a file.
class FirstFile : public std::streambuf {
 public:
  FirstFile(const AllocationWindow& window, std::string text)
      : window_(window), text_(std::move(text)) {}
  std::uint64_t allocations_before() const { return allocations_before_; }

 private:
  int_type underflow() override {
    if (gptr() != nullptr) return traits_type::eof();
    allocations_before_ = window_.allocations();
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(*gptr());
  }

  const AllocationWindow& window_;
  std::string text_;
  std::uint64_t allocations_before_ = 0;
};

/// What is written, without allocating: a stream would take a failure of that for one to write.
class Captured : public std::streambuf {
 public:
  Captured() { setp(data_.data(), data_.data() + data_.size()); }
  std::string text() const { return {pbase(), pptr()}; }

 private:
  std::array<char, 4096> data_{};
};

/// What came of a call, and the numbers of its allocations, before the first file and in all.
struct MeteredCall {
  int code = -1;
  std::string out = {};
  std::string err = {};
  std::uint64_t allocations_before = 0;
  std::uint64_t allocations = 0;
};

/// Runs the program in this process, with one of its allocations failing, or with 0 none.
MeteredCall run_failing(const std::vector<std::string>& arguments, const std::string& input,
                        std::uint64_t failing) {
  Captured out_text;
  Captured err_text;
  std::ostream out(&out_text);
  std::ostream err(&err_text);
  MeteredCall call;
  {
    const AllocationWindow window(failing);
    FirstFile in_text(window, input);
    std::istream in(&in_text);
    call.code = run(arguments, {in, out, err});
    call.allocations_before = in_text.allocations_before();
    call.allocations = window.allocations();
  }
  call.out = out_text.text();
  call.err = err_text.text();
  return call;
}

TEST(OutOfMemory, ForOneFileStopsNoOther) {
  const std::string input = "#a\n\n0 1\n";
  const TemporaryFolder folder;
  const std::vector<std::pair<std::string, std::string>> files = {
      {"<stdin>", input},
      {folder.write("b.qin", "#b(c=d)\n\n0 2\n"), "#b(c=d)\n\n0 2\n"},
      {folder.write("c.qin", "#e = f\n\nXYZ g\n"), "#e = f\n\nXYZ g\n"}};
  const std::vector<std::string> arguments = {"fmt", "-", folder.path("b.qin"),
                                              folder.path("c.qin")};
  const MeteredCall undisturbed = run_failing(arguments, input, 0);
  ASSERT_EQ(undisturbed.code, 0);
  std::map<std::string, std::string> outputs = {{"", undisturbed.out}};
  for (const auto& [file, ignored] : files) {
    std::string& output = outputs[file + ": error: out of memory\n"];
    for (const auto& [other, text] : files) output += other == file ? "" : text;
  }

  std::map<std::string, int> times;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    const MeteredCall call = run_failing(arguments, input, i);
    ASSERT_EQ(outputs.count(call.err), 1U) << call.err;
    EXPECT_EQ(call.out, outputs[call.err]) << call.err;
    EXPECT_EQ(call.code, call.err.empty() ? 0 : 2) << call.err;
    ++times[call.err];
  }
  for (const auto& [err, ignored] : outputs) {
    EXPECT_TRUE(err.empty() || times[err] > 10) << err;
  }
}

TEST(OutOfMemory, LeavesTheOldTextAloneOrTheNewTextBesideItsBackup) {
  const std::string input = "1\n\nHe 0 0 1\n";
  const std::string old_text = "0 1\nHe 0 0 0\n";
  const std::string new_text = "0 1\nHe       0.000000      0.000000      1.000000\n";
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", old_text);
  const std::vector<std::string> arguments = {"set", "-q", "-i", "--backup", path, "--atoms", "-"};
  const MeteredCall undisturbed = run_failing(arguments, input, 0);
  int failures = 0;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    folder.write("a.qin", old_text);
    std::filesystem::remove(path + ".bak");
    const MeteredCall call = run_failing(arguments, input, i);
    const bool failed = call.code == 2;
    EXPECT_EQ(call.err, failed ? path + ": error: out of memory\n" : "") << i;
    EXPECT_EQ(content_of(path), failed ? old_text : new_text) << i;
    EXPECT_EQ(names_in(folder.path()), failed ? Names{"a.qin"} : (Names{"a.qin", "a.qin.bak"}))
        << i;
    failures += failed ? 1 : 0;
  }
  EXPECT_GT(failures, 10);
}

}  // namespace
}  // namespace kelp::input::quill::tool
