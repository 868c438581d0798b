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

  const TemporaryFolder& folder() const { return folder_; }

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
  for (const Shape& shape : shapes()) {
    const std::string text = shape.text(2 * shape.test_size);
    const std::string path = folder().write("b.qin", text);
    ParseResult result;
    const std::int64_t reading = peak_of([&] { result = parse_file(path); });
    EXPECT_TRUE(result.ok);
    result = ParseResult();
    const std::int64_t peak = peak_for(text);
    EXPECT_LE(peak, reading / 2 * 5 + GetParam().fixed)
        << static_cast<double>(peak) / static_cast<double>(reading) << " times reading "
        << shape.name << ", " << static_cast<double>(peak) / static_cast<double>(text.size())
        << " times the text";
  }
}

// What the linter finds takes memory, too, and in most shapes it finds something in every line.
const Verb linting_verbs[] = {
    {"Lint", {"lint"}},
    {"LintAsJson", {"lint", "--format=json"}},
    {"LintAsSarif", {"lint", "--format=sarif"}},
};

class LinterMemory : public VerbMemory {};

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
