#include "quill-inp/batch/ordered_work.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace kelp::input::quill::tool {
namespace {

std::vector<std::size_t> numbers_below(std::size_t end) {
  std::vector<std::size_t> numbers(end);
  std::iota(numbers.begin(), numbers.end(), std::size_t{0});
  return numbers;
}

class OrderedWorkThreads : public testing::TestWithParam<unsigned> {};

TEST_P(OrderedWorkThreads, DeliverEveryPieceOnceAndInOrder) {
  constexpr std::size_t count = 500;
  std::vector<std::atomic<int>> times(count);
  std::vector<std::size_t> delivered;
  const std::thread::id caller = std::this_thread::get_id();
  OrderedWork pieces;
  pieces.count = count;
  pieces.work = [&](std::size_t number) {
    if (number % 7 == 0) std::this_thread::yield();
    ++times[number];
  };
  pieces.deliver = [&](std::size_t number) {
    EXPECT_EQ(std::this_thread::get_id(), caller);
    EXPECT_EQ(times[number], 1);
    delivered.push_back(number);
  };
  pieces.pass_time = [] {};
  do_in_order(pieces, GetParam());
  EXPECT_EQ(delivered, numbers_below(count));
}

TEST_P(OrderedWorkThreads, BeginNoMoreThanTheWindowHolds) {
  const std::size_t window = window_of(GetParam());
  std::atomic<std::size_t> begun{0};
  std::size_t delivered = 0;
  OrderedWork pieces;
  pieces.count = 20 * window;
  pieces.work = [&](std::size_t) { ++begun; };
  pieces.deliver = [&](std::size_t) {
    if (delivered % window == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_LE(begun, delivered + window);
    ++delivered;
  };
  pieces.pass_time = [] {};
  do_in_order(pieces, GetParam());
  EXPECT_EQ(begun, pieces.count);
}

TEST_P(OrderedWorkThreads, DeliverWhatIsBeforeAPieceThatThrows) {
  std::vector<std::size_t> delivered;
  std::atomic<std::size_t> begun{0};
  OrderedWork pieces;
  pieces.count = 100000;
  pieces.work = [&](std::size_t number) {
    ++begun;
    if (number == 30) throw std::runtime_error("no");
  };
  pieces.deliver = [&](std::size_t number) { delivered.push_back(number); };
  pieces.pass_time = [] {};
  EXPECT_THROW(do_in_order(pieces, GetParam()), std::runtime_error);
  EXPECT_EQ(delivered, numbers_below(30));
  EXPECT_LE(begun, 30 + window_of(GetParam()));
}

TEST_P(OrderedWorkThreads, EndWhenDeliveringThrows) {
  OrderedWork pieces;
  pieces.count = 100000;
  pieces.work = [](std::size_t) {};
  pieces.deliver = [&](std::size_t) { throw std::runtime_error("no"); };
  pieces.pass_time = [] {};
  EXPECT_THROW(do_in_order(pieces, GetParam()), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Some, OrderedWorkThreads, testing::Values(1U, 2U, 8U));

TEST(OrderedWork, PassesTimeWhileItWaits) {
  std::atomic<bool> has_waited{false};
  OrderedWork pieces;
  pieces.count = 1;
  pieces.work = [&](std::size_t) {
    while (!has_waited) std::this_thread::yield();
  };
  pieces.deliver = [](std::size_t) {};
  pieces.pass_time = [&] { has_waited = true; };
  do_in_order(pieces, 1);
  EXPECT_TRUE(has_waited);
}

TEST(OrderedWork, DeliversTheFirstPieceWhileAnotherOneTakesLong) {
  std::atomic<bool> is_delivered{false};
  OrderedWork pieces;
  pieces.count = 2;
  pieces.work = [&](std::size_t number) {
    while (number == 1 && !is_delivered) std::this_thread::yield();
  };
  pieces.deliver = [&](std::size_t) { is_delivered = true; };
  pieces.pass_time = [] {};
  do_in_order(pieces, 2);
  EXPECT_TRUE(is_delivered);
}

TEST(OrderedWork, DoesNothingForNothing) {
  OrderedWork pieces;
  do_in_order(pieces, 2);
}

}  // namespace
}  // namespace kelp::input::quill::tool
