// Checks what is true for the language server whatever a client sends, on random edits, on what the
// fuzzers keep, and on sessions with odd bytes in every place.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "properties/holds.hpp"
#include "properties/sample_files.hpp"
#include "tools/properties/serving.hpp"

namespace kelp::input::quill::language_server {

namespace {

std::string random_bytes(std::mt19937& engine, std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i) bytes += static_cast<char>(engine() & 0xFFU);
  return bytes;
}

TEST(Serving, FollowsRandomEditsInEveryEncoding) {
  std::mt19937 engine(20240229);
  for (int i = 0; i < 800; ++i) {
    const std::string bytes = random_bytes(engine, 10 + engine() % 150);
    ASSERT_TRUE(holds([&] { check_edits(bytes); }));
  }
}

const std::string session[] = {
    R"({"jsonrpc":"2.0","id":1,"method":"textDocument/hover","params":{"textDocument":{"uri":"a:b"},"position":{"line":2,"character":0}}})",
    R"({"jsonrpc":"2.0","id":2,"method":"textDocument/codeAction","params":{"textDocument":{"uri":"a:b"},"range":{"start":{"line":0,"character":0},"end":{"line":4,"character":0}},"context":{"diagnostics":[]}}})",
    R"({"jsonrpc":"2.0","id":3,"method":"textDocument/formatting","params":{"textDocument":{"uri":"a:b"},"options":{}}})",
    R"({"jsonrpc":"2.0","method":"textDocument/didChange","params":{"textDocument":{"uri":"a:b","version":2},"contentChanges":[{"range":{"start":{"line":0,"character":0},"end":{"line":1,"character":0}},"text":""}]}})",
    R"({"jsonrpc":"2.0","id":4,"method":"workspace/executeCommand","params":{"command":"quillInp.structure","arguments":["a:b"]}})",
    R"({"jsonrpc":"2.0","id":5,"method":"shutdown"})",
    R"({"jsonrpc":"2.0","method":"exit"})"};

std::string joined() {
  std::string lines;
  for (const std::string& line : session) lines += line + "\n";
  return lines;
}

TEST(Serving, SurvivesOddBytesInAnyPlaceOfASession) {
  const std::string lines = joined();
  for (std::size_t at = 0; at < lines.size(); at += 3) {
    std::string odd = lines;
    odd[at] = "\xFF\n\"{[-9"[at % 7];
    ASSERT_TRUE(holds([&] { check_messages(odd); })) << at;
  }
}

TEST(Serving, SurvivesAConnectionThatIsCutAnywhere) {
  std::string bytes;
  for (const std::string& line : session)
    bytes += "Content-Length: " + std::to_string(line.size()) + "\r\n\r\n" + line;
  for (std::size_t length = 0; length <= bytes.size(); length += 5)
    ASSERT_TRUE(holds([&] { check_connection(bytes.substr(0, length)); })) << length;
}

class ServedFile : public testing::TestWithParam<SampleFile> {};

TEST_P(ServedFile, HasTheProperties) {
  EXPECT_TRUE(holds([] { check_connection(GetParam().content); }));
  EXPECT_TRUE(holds([] { check_messages(GetParam().content); }));
  EXPECT_TRUE(holds([] { check_edits(GetParam().content); }));
}

INSTANTIATE_TEST_SUITE_P(Seeds, ServedFile, testing::ValuesIn(sample_files("fuzz/seeds")),
                         [](const auto& file) { return test_name(file.param); });

}  // namespace

}  // namespace kelp::input::quill::language_server
