// How much memory the verbs need, compared with the text and with what reading it alone needs.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/reader.hpp"
#include "scale/counted_memory.hpp"
#include "scale/shapes.hpp"
#include "support/temporary_folder.hpp"
#include "tools/scale/in_memory_call.hpp"

namespace kelp::input::quill::tool {
namespace {

/// What differs from call to call, such as the words of messages.
constexpr std::int64_t small_change = 16 * 1024;

/// What a call needs even for an empty file: the options, and room to read into.
constexpr std::int64_t for_one_call = 600 * 1024;

std::int64_t peak_of(const std::function<void()>& work) {
  const MemoryCount memory;
  work();
  return memory.peak_bytes();
}

/// The search for the smallest difference keeps where it was at each of a thousand steps.
constexpr std::int64_t for_a_difference = 9 * 1024 * 1024;

struct Verb {
  std::string_view name;
  /// What comes before the file and after it.
  std::vector<std::string> before;
  std::vector<std::string> after = {};
  /// What it needs besides, however large the text is.
  std::int64_t fixed = small_change;
};

std::vector<std::string> arguments_of(const Verb& verb, const std::string& path) {
  std::vector<std::string> arguments = verb.before;
  arguments.push_back(path);
  arguments.insert(arguments.end(), verb.after.begin(), verb.after.end());
  return arguments;
}

/// Atoms by hand that are not close to one another, which the linter would find.
std::string text_of_atoms(std::string_view blanks = "   ") {
  std::string text = "#opt\n#model = m2\n\n0 1\n";
  for (int i = 0; i < 20000; ++i) {
    text += "C";
    for (const int place : {i % 30, i / 30 % 30, i / 900}) {
      text += blanks;
      text += std::to_string(2.0 * place);
    }
    text += "\n";
  }
  return text;
}

/// What reads like a line of an input, and draws a finding for every line or for every byte.
struct Faulty {
  std::string_view name;
  std::string text;
};

std::vector<Faulty> faulty_texts() {
  const std::string atoms = "#opt\n0 1\nH 0 0 0\nH 0 0 0.741\n";
  return {
      {"EmptyEntries", "#opt(" + repeated(",", 200000) + ")\n"},
      {"EntriesWithoutANameInManyLists", repeated("#opt(=1,=2,=3)\n", 4000)},
      {"RepeatedParameters", "#opt(" + repeated("tight, ", 8000) + ")\n"},
      {"UnclosedLists", repeated("#opt(a\n", 8000)},
      {"UnclosedQuotes", repeated("#a = 'b\n", 8000)},
      {"LateCommands", atoms + repeated("#freq\n", 8000)},
      {"LateReferences", atoms + "C 1\n" + repeated("XYZ a.xyz\n", 8000)},
      {"DroppedLines", atoms + "B 1 2\n" + repeated("B 1 x\n", 8000)},
      {"WrongFieldCounts", atoms + repeated("B 1 2 3 4\n", 8000)},
      {"RepeatedAtomNumbers", atoms + repeated("D 1 1 1 1\n", 8000)},
      {"AtomNumbersThatAreTooLarge", atoms + repeated("B 7 8\n", 8000)},
      {"ScansWithoutSteps", atoms + repeated("S 1 2 1.5 0\n", 8000)},
      {"BlanksThatAreLetters", atoms + repeated("\xC2\xA0", 40000) + "\n"},
      {"BlanksThatAreLettersInEachLine", atoms + repeated("C\xC2\xA0"
                                                          "1\n",
                                                          8000)},
      {"InvisibleCharacters", atoms + repeated("\xE2\x80\x8B\n", 16000)},
      {"TypographicQuotes", repeated("#a=\xE2\x80\x9C"
                                     "b\xE2\x80\x9D\n",
                                     8000)},
      {"CarriageReturns", "#opt\n" + repeated("a\r", 40000) + "b\n"},
      {"CarriageReturnsInEachLine", "#opt\n" + repeated("a\rb\n", 16000)},
  };
}

class VerbMemory : public testing::TestWithParam<Verb> {
 protected:
  /// Returns what the verb needs for a text, beyond what it needs for an empty file.
  std::int64_t peak_for(const std::string& text) const { return peak_with(text) - peak_with(""); }

  void expect_for_atoms(std::int64_t times) const {
    const std::string by_hand = text_of_atoms();
    for (const std::string& text :
         {by_hand, text_of_atoms(" "), parse_string(by_hand).input.to_string()}) {
      const std::int64_t peak = peak_for(text);
      EXPECT_LE(peak, times * static_cast<std::int64_t>(text.size()) + GetParam().fixed)
          << static_cast<double>(peak) / static_cast<double>(text.size()) << " times a text of "
          << text.size() << " bytes";
    }
  }

  void expect_times_reading(std::string_view name, const std::string& text) const {
    const std::string path = folder_.write("b.qin", text);
    ParseResult result;
    const std::int64_t reading = peak_of([&] { result = parse_file(path); });
    EXPECT_TRUE(result.ok);
    result = ParseResult();
    const std::int64_t peak = peak_for(text);
    EXPECT_LE(peak, reading / 2 * 5 + GetParam().fixed)
        << static_cast<double>(peak) / static_cast<double>(reading) << " times reading " << name
        << ", " << static_cast<double>(peak) / static_cast<double>(text.size())
        << " times the text";
  }

 private:
  std::int64_t peak_with(const std::string& text) const {
    const std::vector<std::string> arguments =
        arguments_of(GetParam(), folder_.write("a.qin", text));
    CallEnd end;
    const std::int64_t peak = peak_of([&] { end = call_in_memory(arguments); });
    EXPECT_NE(end.code, -1);
    return peak;
  }

  TemporaryFolder folder_;
};

const Verb verbs[] = {
    {"Show", {"show"}},
    {"ShowAsJson", {"show", "--json"}},
    {"ShowOfLines", {"show", "--lines"}},
    {"Fmt", {"fmt", "--allow-loss"}},
    {"FmtAsACheck", {"fmt", "--check", "--allow-loss"}},
    {"FmtInPlace", {"fmt", "-i", "--allow-loss"}},
    {"FmtThatRefuses", {"fmt"}},
    {"FmtAsADiff", {"fmt", "--diff", "--allow-loss"}, {}, for_a_difference},
    {"GetOfAtoms", {"get"}, {"@atoms"}},
    {"Set", {"set", "--allow-loss"}, {"model=m1", "@charge=1"}},
    {"SetInPlace", {"set", "-i", "--allow-loss"}, {"model=m1"}},
    {"SetAsADiff", {"set", "--diff", "--allow-loss"}, {"model=m1"}, for_a_difference},
    {"Unset", {"unset", "--allow-loss"}, {"a"}},
    {"Add", {"add", "--allow-loss"}, {"--bond", "1,2"}},
    {"Json", {"json"}},
    {"Hash", {"hash", "--allow-loss"}},
    {"GetAsJson", {"get", "--json"}, {"@natoms", "@charge"}},
};

TEST_P(VerbMemory, IsAtMostEightTimesATextOfAtoms) { expect_for_atoms(8); }

TEST_P(VerbMemory, IsAtMostTwoAndAHalfTimesThatOfReadingOtherTexts) {
  for (const Shape& shape : shapes())
    expect_times_reading(shape.name, shape.text(2 * shape.test_size));
}

/// A thousand findings of one rule are kept, with their words.
constexpr std::int64_t for_findings = 1024 * 1024;

const Verb linting_verbs[] = {
    {"Lint", {"lint"}, {}, for_findings},
    {"LintAsJson", {"lint", "--format=json"}, {}, for_findings},
    {"LintAsGithub", {"lint", "--format=github"}, {}, for_findings},
    {"LintAsSarif", {"lint", "--format=sarif"}, {}, for_findings},
    {"LintWithStatistics", {"lint", "--statistics"}, {}, for_findings},
};

class LinterMemory : public VerbMemory {};

TEST_P(LinterMemory, IsAtMostTwoAndAHalfTimesThatOfReadingOtherTexts) {
  for (const Shape& shape : shapes())
    expect_times_reading(shape.name, shape.text(2 * shape.test_size));
}

TEST_P(LinterMemory, IsAtMostTwoAndAHalfTimesThatOfReadingFaultyTexts) {
  for (const Faulty& faulty : faulty_texts()) expect_times_reading(faulty.name, faulty.text);
}

TEST_P(LinterMemory, IsAtMostEightTimesATextOfAtomsWithoutFindings) { expect_for_atoms(8); }

// These read a text while they keep another one, with what the reader made of it.
const Verb rereading_verbs[] = {
    {"LintThatMends", {"lint", "--fix"}},
    {"SetThatIsStrict", {"set", "--strict"}, {"model=m1"}},
    {"FmtThatIsStrict", {"fmt", "--strict"}},
    {"HashThatIsStrict", {"hash", "--strict"}},
};

class RereadingMemory : public VerbMemory {};

TEST_P(RereadingMemory, IsAtMostEightTimesATextOfAtoms) { expect_for_atoms(8); }

void PrintTo(const Verb& verb, std::ostream* out) { *out << verb.name; }

INSTANTIATE_TEST_SUITE_P(Of, VerbMemory, testing::ValuesIn(verbs),
                         [](const auto& verb) { return std::string(verb.param.name); });

INSTANTIATE_TEST_SUITE_P(Of, LinterMemory, testing::ValuesIn(linting_verbs),
                         [](const auto& verb) { return std::string(verb.param.name); });

INSTANTIATE_TEST_SUITE_P(Of, RereadingMemory, testing::ValuesIn(rereading_verbs),
                         [](const auto& verb) { return std::string(verb.param.name); });

TEST(MemoryOfManyFiles, IsThatOfOne) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", text_of_atoms());
  for (const char* verb : {"show", "fmt", "json", "hash", "lint"}) {
    const std::int64_t one = peak_of([&] { call_in_memory({verb, path}); });
    const std::int64_t four = peak_of([&] { call_in_memory({verb, path, path, path, path}); });
    EXPECT_LE(four, one + small_change) << verb;
  }
  const auto get = [&](int times) {
    std::vector<std::string> arguments = {"get", "-k", "@natoms"};
    arguments.insert(arguments.end(), static_cast<std::size_t>(times), path);
    return peak_of([&] { call_in_memory(arguments); });
  };
  EXPECT_LE(get(4), get(1) + small_change);
}

TEST(MemoryOfManyFiles, OfASweepIsAtMostEightTimesATextOfAtoms) {
  const TemporaryFolder folder;
  for (const std::string& text : {text_of_atoms(), text_of_atoms(" ")}) {
    for (const char* const option : {"--quiet", "--strict"}) {
      const std::string path = folder.write("a.qin", text);
      const std::string pattern = folder.path() + "/{number}" + option + ".qin";
      CallEnd end;
      const std::int64_t peak = peak_of([&] {
        end = call_in_memory(
            {"sweep", path, "opt.maxiter=[1,2,3]", "-o", pattern, "-j1", "--force", option});
      });
      EXPECT_EQ(end.code, 0);
      EXPECT_LE(peak, 8 * static_cast<std::int64_t>(text.size()) + for_one_call)
          << static_cast<double>(peak) / static_cast<double>(text.size()) << ' ' << option;
    }
  }
}

TEST(VerbMemory, OfNewAndOfSetIsAtMostEightTimesTheAtomsThatTheyWrite) {
  const TemporaryFolder folder;
  const std::string xyz =
      folder.write("a.xyz", "20000\n\n" + repeated("C -0.729000 -2.609047 2.312980\n", 20000));
  const std::string input = folder.write("a.qin", "#opt\n0 1\nHe 0 0 0\n");
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"new", "--charge", "0", "--atoms", xyz},
        std::vector<std::string>{"set", input, "--atoms", xyz}}) {
    CallEnd end;
    const std::int64_t peak = peak_of([&] { end = call_in_memory(arguments); });
    EXPECT_EQ(end.code, 0) << arguments.front();
    EXPECT_LE(peak, 8 * static_cast<std::int64_t>(end.written) + for_one_call) << arguments.front();
  }
}

TEST(VerbMemory, OfFromJsonIsAtMostEightTimesTheJsonOfAtoms) {
  const TemporaryFolder folder;
  const std::string atom = R"({"symbol":"C","x":-0.729,"y":-2.609047,"z":2.31298},)";
  std::string text = R"({"geometry":{"kind":"atoms","charge":0,"atoms":[)" + repeated(atom, 20000);
  text.back() = ']';
  text += "}}";
  const std::string path = folder.write("a.json", text);
  CallEnd end;
  EXPECT_LE(peak_of([&] {
              end = call_in_memory({"from-json", path});
            }),
            8 * static_cast<std::int64_t>(text.size()) + for_one_call);
  EXPECT_EQ(end.code, 0);
}

}  // namespace
}  // namespace kelp::input::quill::tool
