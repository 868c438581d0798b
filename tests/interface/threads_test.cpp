// Distinct documents in distinct threads, and one unchanging document in several. Made for the
// thread sanitizer, which reports shared state that the results would not show.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using Kind = PostCommandKind;

constexpr int thread_count = 8;
constexpr int rounds = 50;

/// Runs the work in all threads at once, passing each its number, and waits for them all.
void run_in_threads(const std::function<void(int)>& work) {
  std::promise<void> start;
  const std::shared_future<void> started = start.get_future().share();
  std::vector<std::thread> threads;
  for (int number = 0; number < thread_count; ++number) {
    threads.emplace_back([&work, started, number] {
      started.wait();
      for (int round = 0; round < rounds; ++round) work(number);
    });
  }
  start.set_value();
  for (std::thread& thread : threads) thread.join();
}

/// The documents of two threads differ in every section.
QuillInput document_of(int thread) {
  const std::string number = std::to_string(thread);
  return QuillInput({flag("opt"), list("Scan", {{"steps", number}, {"tight"}}),
                     assignment("model", "m" + number), flag("opt")},
                    charged(thread, thread + 1, atoms({{"O", 0.5, thread / 4.0, -1.25}})),
                    {constraint(Kind::BondConstraint, {1, thread}, "B 1 " + number),
                     scan({1, 2}, thread + 0.5, thread, "S 1 2 " + number + ".5 " + number)});
}

/// A text with a problem of every kind of section, at lines that differ between threads.
std::string text_of(int thread) {
  return std::string(static_cast<std::size_t>(thread), '\n') + "#(\nXx 0 0 0\nB 1 x\n";
}

ParseResult result_of(int thread) {
  const auto line = [thread](int number) { return "Line " + std::to_string(thread + number); };
  return read_as(
      {{list("", {})}, atoms({{"Xx", 0, 0, 0}})},
      {line(1) + ": missing ')' in QUILL header command",
       line(1) + ": QUILL header command has no name", line(2) + ": unknown element symbol 'Xx'",
       line(3) + ": ignored unrecognized QUILL post-processing line"});
}

/// The failures, by thread: only the main thread can use assertions.
class Failures {
 public:
  void check(int thread, bool holds) {
    if (!holds) ++counts_[static_cast<std::size_t>(thread)];
  }
  const std::vector<int>& counts() const { return counts_; }

 private:
  std::vector<int> counts_ = std::vector<int>(thread_count, 0);
};

const std::vector<int> none(thread_count, 0);

TEST(Threads, ReadEditAndWriteDocumentsOfTheirOwn) {
  Failures failures;
  run_in_threads([&failures](int thread) {
    const QuillInput document = document_of(thread);
    const std::string text = document.to_string();
    ParseResult result = parse_string(text);
    failures.check(thread, result == read_as(document));
    failures.check(thread, parse_string(text_of(thread)) == result_of(thread));

    QuillInput& input = result.input;
    input.upsert_command("device").value = "gpu";
    failures.check(thread, input.remove_command("OPT", 1));
    failures.check(thread, input.remove_command("device"));
    input.commands.push_back(flag("opt"));
    failures.check(thread, input == document);
    failures.check(thread, input.to_string() == text);
  });
  EXPECT_EQ(failures.counts(), none);
}

TEST(Threads, LookUpAndWriteOneDocument) {
  const QuillInput document = document_of(3);
  const std::string text = document.to_string();
  Failures failures;
  run_in_threads([&](int thread) {
    failures.check(thread, document.find_command("#opt", 1) == &document.commands[3]);
    failures.check(thread, document.has_command(" MODEL "));
    failures.check(thread, document.has_task_command());
    failures.check(thread, document.command_names() ==
                               std::vector<std::string>{"opt", "Scan", "model", "opt"});
    failures.check(thread, find_parameter_index(document.commands[1], "TIGHT") == 1U);
    failures.check(thread, document.to_string() == text);
    failures.check(thread, to_string(document.commands[1]) == "#Scan(steps=3, tight)");
    failures.check(thread, to_string(document.post_commands[1]) == "S 1 2 3.5 3");
    failures.check(thread, !to_string(document.geometry).empty());
    failures.check(thread, QuillInput(document) == document);
  });
  EXPECT_EQ(failures.counts(), none);
}

TEST(Threads, ReadOneTextAndOneFile) {
  const TemporaryFolder folder;
  const std::string text = document_of(5).to_string();
  const std::string path = folder.write("job.qin", text);
  const ParseResult expected = read_as(document_of(5));
  Failures failures;
  run_in_threads([&](int thread) {
    failures.check(thread, parse_string(text) == expected);
    failures.check(thread, parse_file(path) == expected);
    failures.check(thread, !parse_file(path + ".missing").ok);
  });
  EXPECT_EQ(failures.counts(), none);
}

TEST(Threads, WriteFilesOfTheirOwn) {
  const TemporaryFolder folder;
  Failures failures;
  run_in_threads([&](int thread) {
    const std::string path = folder.path(std::to_string(thread));
    document_of(thread).write_file(path);
    failures.check(thread, parse_file(path) == read_as(document_of(thread)));
  });
  EXPECT_EQ(failures.counts(), none);
}

}  // namespace
}  // namespace kelp::input::quill
