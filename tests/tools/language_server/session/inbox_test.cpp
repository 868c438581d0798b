#include "language_server/session/inbox.hpp"

#include <gtest/gtest.h>

namespace kelp::input::quill::language_server {

namespace {

Message message_of(Message::Kind kind, int id) {
  Message message;
  message.kind = kind;
  message.id = id;
  return message;
}

TEST(Inbox, KnowsTheBytesOfTheMessagesThatWait) {
  Inbox inbox;
  EXPECT_EQ(inbox.bytes(), 0U);
  inbox.add(message_of(Message::Kind::Request, 1), 10);
  inbox.add(message_of(Message::Kind::Notification, 2), 200);
  inbox.add(message_of(Message::Kind::Request, 3), 3000);
  EXPECT_EQ(inbox.size(), 3U);
  EXPECT_EQ(inbox.bytes(), 3210U);
  EXPECT_TRUE(inbox.cancel(3));
  EXPECT_EQ(inbox.bytes(), 210U);
  EXPECT_FALSE(inbox.cancel(2));
  EXPECT_FALSE(inbox.cancel(3));
  EXPECT_EQ(inbox.bytes(), 210U);
  EXPECT_EQ(inbox.take().id, 1);
  EXPECT_EQ(inbox.bytes(), 200U);
  EXPECT_EQ(inbox.take().id, 2);
  EXPECT_EQ(inbox.bytes(), 0U);
  EXPECT_TRUE(inbox.is_empty());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
