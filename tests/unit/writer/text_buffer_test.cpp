#include "writer/text_buffer.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace kelp::input::quill {

namespace {

constexpr std::size_t capacity = TextBuffer::capacity;

std::string text_of_size(std::size_t size) { return std::string(size, 'x'); }

class BufferedText : public testing::Test {
 protected:
  /// The string after everything was appended.
  std::string flushed() {
    buffer_.flush(end_);
    return out_;
  }

  std::string out_ = "S";
  TextBuffer buffer_{out_};
  char* end_ = buffer_.begin();
};

TEST_F(BufferedText, ReachesTheStringWhenItIsFlushed) {
  end_ = buffer_.add(end_, 'a');
  end_ = buffer_.add(end_, "bc");
  end_ = buffer_.add(end_, "");
  end_ = buffer_.add(end_, 'd');
  EXPECT_EQ(out_, "S");
  EXPECT_EQ(flushed(), "Sabcd");
}

TEST_F(BufferedText, ThatIsEmptyAddsNothing) { EXPECT_EQ(flushed(), "S"); }

TEST_F(BufferedText, MayHoldEveryByte) {
  using namespace std::string_literals;
  end_ = buffer_.add(end_, '\0');
  end_ = buffer_.add(end_, "\0\xFF\n"s);
  EXPECT_EQ(flushed(), "S\0\0\xFF\n"s);
}

TEST_F(BufferedText, CanTakeTheWholeRoom) {
  EXPECT_EQ(buffer_.room(end_, capacity), end_);
  EXPECT_EQ(out_, "S");
}

TEST_F(BufferedText, StaysWhereTheNextPieceFillsTheBufferExactly) {
  end_ = buffer_.add(end_, text_of_size(capacity - 2));
  EXPECT_EQ(buffer_.room(end_, 2), end_);
  end_ = buffer_.add(end_, "yz");
  EXPECT_EQ(end_, buffer_.begin() + capacity);
  EXPECT_EQ(out_, "S");
  EXPECT_EQ(flushed(), "S" + text_of_size(capacity - 2) + "yz");
}

TEST_F(BufferedText, MakesRoomForAPieceThatIsOneTooLong) {
  end_ = buffer_.add(end_, text_of_size(capacity - 2));
  end_ = buffer_.room(end_, 3);
  EXPECT_EQ(end_, buffer_.begin());
  EXPECT_EQ(out_, "S" + text_of_size(capacity - 2));
  end_ = buffer_.add(end_, "xyz");
  EXPECT_EQ(flushed(), "S" + text_of_size(capacity - 2) + "xyz");
}

TEST_F(BufferedText, TakesCharactersUntilItIsFull) {
  for (std::size_t i = 0; i < capacity; ++i) end_ = buffer_.add(end_, 'x');
  EXPECT_EQ(out_, "S");
  end_ = buffer_.add(end_, 'y');
  EXPECT_EQ(out_, "S" + text_of_size(capacity));
  EXPECT_EQ(flushed(), "S" + text_of_size(capacity) + "y");
}

TEST_F(BufferedText, OfTheWholeCapacityIsCollected) {
  end_ = buffer_.add(end_, 'a');
  end_ = buffer_.add(end_, text_of_size(capacity));
  EXPECT_EQ(out_, "Sa");
  end_ = buffer_.add(end_, 'b');
  EXPECT_EQ(flushed(), "Sa" + text_of_size(capacity) + "b");
}

TEST_F(BufferedText, LongerThanTheCapacityIsAppendedAtOnce) {
  end_ = buffer_.add(end_, 'a');
  end_ = buffer_.add(end_, text_of_size(capacity + 1));
  EXPECT_EQ(end_, buffer_.begin());
  EXPECT_EQ(out_, "Sa" + text_of_size(capacity + 1));
  end_ = buffer_.add(end_, 'b');
  EXPECT_EQ(flushed(), "Sa" + text_of_size(capacity + 1) + "b");
}

}  // namespace

}  // namespace kelp::input::quill
