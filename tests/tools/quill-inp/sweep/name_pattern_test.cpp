#include "quill-inp/sweep/name_pattern.hpp"

#include <gtest/gtest.h>

#include <string>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

const NameFields fields = {{"name", "water"}, {"opt.maxiter", "50"}, {"basis", "a/b"}};

TEST(NamePattern, TakesFieldsInBraces) {
  EXPECT_EQ(make_name("jobs/{name}-{opt.maxiter}.qin", fields), "jobs/water-50.qin");
  EXPECT_EQ(make_name("{{{name}}}", fields), "{water}");
  EXPECT_EQ(make_name("plain", fields), "plain");
  EXPECT_EQ(make_name("{name}{name}", fields), "waterwater");
}

TEST(NamePattern, SaysWhatIsWrong) {
  const struct {
    const char* pattern;
    const char* message;
  } rows[] = {
      {"{nam}", "unknown field '{nam}' in the name; there are {name}, {opt.maxiter}, {basis}"},
      {"{}", "unknown field '{}' in the name; there are {name}, {opt.maxiter}, {basis}"},
      {"a{", "an unmatched brace in the name; write '{{' or '}}' for a brace"},
      {"a}b", "an unmatched brace in the name; write '{{' or '}}' for a brace"},
      {"{basis}", "the value 'a/b' of {basis} cannot be part of a name; use {number} instead"},
  };
  for (const auto& row : rows) {
    try {
      ADD_FAILURE() << make_name(row.pattern, fields);
    } catch (const UsageError& error) {
      EXPECT_STREQ(error.what(), row.message);
    }
  }
}

TEST(NamePattern, KnowsStemsAndNumbers) {
  EXPECT_EQ(stem_of("in/water.v2.qin"), "water.v2");
  EXPECT_EQ(stem_of("water"), "water");
  EXPECT_EQ(padded_number(7, 9), "7");
  EXPECT_EQ(padded_number(7, 10), "07");
  EXPECT_EQ(padded_number(100, 100), "100");
}

}  // namespace
}  // namespace kelp::input::quill::tool
