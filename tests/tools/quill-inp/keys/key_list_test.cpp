#include "quill-inp/keys/key_list.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "kelp/input/quill/reader.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string_view text;
  std::vector<std::string> keys;
};

class KeyList : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoCommands", "0 1\n", {}},
    {"CommandsOfEveryKind",
     "#Opt(MaxIter=50, tight)\n#model = m1\n#sp\n",
     {"Opt", "Opt.MaxIter", "Opt.tight", "model", "sp"}},
    {"CommandsOfOneName",
     "#opt(a)\n#sp\n#OPT(b)\n#opt\n",
     {"opt", "opt.a", "sp", "OPT[1]", "OPT[1].b", "opt[2]"}},
    {"ParametersOfOneName", "#opt(a=1, A=2, b)\n", {"opt", "opt.a", "opt.b"}},
    {"AParameterWithoutAName", "#opt(=1, b)\n", {"opt", "opt.b"}},
    {"NamesWithSpecialCharacters",
     "#a.b(c.d, [e])\n#@x\n#f\\g\n",
     {R"(a\.b)", R"(a\.b.c\.d)", R"(a\.b.\[e\])", R"(\@x)", R"(f\\g)"}},
    {"CommandsWithoutAName",
     "#sp\n# = 5\n#(a)\n",
     {"sp", "@commands[1]", "@commands[2]", "@commands[2].a"}},
    {"NamesThatBeginWithAHash", "##freq\n###freq\n", {"#freq", "@commands[1]"}},
    {"NamesWithBlanks", "#freq opt\n", {"freq opt"}},
};

TEST_P(KeyList, NamesAllThatHasAKey) {
  EXPECT_EQ(list_keys(parse_string(GetParam().text).input), GetParam().keys);
}

TEST_P(KeyList, HasKeysThatFindWhatTheyName) {
  const QuillInput input = parse_string(GetParam().text).input;
  std::size_t commands = 0;
  for (const std::string& text : list_keys(input)) {
    const Key key = parse_key(text);
    EXPECT_TRUE(answer(input, key)) << text;
    if (std::get<CommandKey>(key).parameter) continue;
    EXPECT_EQ(find_command(input, std::get<CommandKey>(key)), &input.commands[commands]) << text;
    ++commands;
  }
  EXPECT_EQ(commands, input.commands.size());
}

INSTANTIATE_TEST_SUITE_P(Table, KeyList, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
