// Checks what is true for every document and every edit on some thousand random ones.

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>

#include "properties/as_written.hpp"
#include "properties/editing.hpp"
#include "properties/everything.hpp"
#include "properties/expressible.hpp"
#include "properties/holds.hpp"
#include "properties/made_document.hpp"

namespace kelp::input::quill {
namespace {

std::string random_bytes(std::mt19937& random, std::size_t most) {
  std::string bytes(random() % most, '\0');
  for (char& c : bytes) c = static_cast<char>(static_cast<unsigned char>(random()));
  return bytes;
}

TEST(ManyDocuments, HaveTheProperties) {
  constexpr int count = 8000;
  std::mt19937 random(20240521);
  int reading_back = 0;
  for (int i = 0; i < count; ++i) {
    const std::string bytes = random_bytes(random, 160);
    ByteSource source(bytes);
    const QuillInput document = made_document(source);
    ASSERT_TRUE(holds([&] { check_document(document); })) << "number " << i;
    if (!reason_not_to_read_back(as_written(document))) ++reading_back;
  }
  // Were all documents exceptions, reading back would be a property of nothing.
  EXPECT_GT(reading_back, count / 20);
}

TEST(ManyEdits, DoWhatTheirOperationsSay) {
  std::mt19937 random(20240522);
  for (int i = 0; i < 2000; ++i) {
    const std::string bytes = random_bytes(random, 400);
    ASSERT_TRUE(holds([&] { check_edits(bytes); })) << "number " << i;
  }
}

TEST(ABuilder, IsGivenEveryOperationThatItHas) {
  // The first byte asks for a builder, the second for an operation.
  for (int operation = 0; operation < 22; ++operation) {
    const std::string bytes = {'\1', static_cast<char>(operation), '\0', '\1'};
    EXPECT_TRUE(holds([&] { check_edits(bytes); })) << "operation " << operation;
  }
}

}  // namespace
}  // namespace kelp::input::quill
