// The text of a whole input is written into room that was reserved at once. If the text had to grow
// again, it would take twice the room, which the tests would notice.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {
namespace {

constexpr std::size_t number_of_parts = 1400;

std::string name_of_size(std::size_t size) { return std::string(size, 'n'); }

template <typename Part>
std::vector<Part> many(const Part& part) {
  return std::vector<Part>(number_of_parts, part);
}

QuillInput with_commands(const HeaderCommand& command) {
  QuillInput input;
  input.commands = many(command);
  return input;
}

QuillInput with_parameters() {
  QuillInput input;
  input.commands.emplace_back("opt", HeaderCommandKind::ParameterList);
  input.commands.back().parameters = many(CommandParameter{name_of_size(10), name_of_size(24)});
  return input;
}

QuillInput with_atoms() {
  QuillInput input;
  input.geometry.kind = GeometryKind::Atoms;
  input.geometry.atoms = many(AtomRecord{"O", 0.0, -1.5, 0.1173});
  return input;
}

QuillInput with_files() {
  QuillInput input;
  input.geometry.kind = GeometryKind::XyzFile;
  input.geometry.xyz_files = many(name_of_size(60));
  return input;
}

QuillInput with_post_commands(const PostCommand& command) {
  QuillInput input;
  input.post_commands = many(command);
  return input;
}

PostCommand raw_line() {
  PostCommand command;
  command.raw_text = name_of_size(60);
  return command;
}

PostCommand post_file() {
  PostCommand command(PostCommandKind::PostFile);
  command.post_file = name_of_size(200);
  return command;
}

struct Row {
  std::string name;
  QuillInput input;
  std::size_t unused;  ///< the bytes reserved for each part beyond those that it takes
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

/// Some standard libraries reserve in steps.
std::size_t capacity_reserved_for(std::size_t size) {
  std::string text;
  text.reserve(size);
  return text.capacity();
}

class RoomOfAnInput : public testing::TestWithParam<Row> {};

TEST_P(RoomOfAnInput, IsReservedAtOnce) {
  constexpr std::size_t for_everything_else = 32;
  const std::string text = GetParam().input.to_string();
  EXPECT_LE(text.capacity(),
            capacity_reserved_for(text.size() + number_of_parts * GetParam().unused +
                                  for_everything_else));
}

const Row rows[] = {
    {"OfFlags", with_commands(HeaderCommand{name_of_size(30)}), 3},
    {"OfAssignments",
     with_commands(
         HeaderCommand{name_of_size(10), HeaderCommandKind::Assignment, name_of_size(30)}),
     0},
    {"OfParameters", with_parameters(), 0},
    {"OfAtoms", with_atoms(), 0},
    {"OfFiles", with_files(), 4},
    {"OfTheLongestScanValues",
     with_post_commands(
         PostCommand{PostCommandKind::Scan, {10001, 10002, 10003, 10004}, -1.23456e-300, 1000000}),
     0},
    {"OfPostFiles", with_post_commands(post_file()), 18},
    {"OfRawLines", with_post_commands(raw_line()), 0},
};

INSTANTIATE_TEST_SUITE_P(Table, RoomOfAnInput, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(RoomOfAnInput, IsThatOfTheLongestTextItCanTake) {
  QuillInput input;
  input.commands.emplace_back("model", HeaderCommandKind::Assignment, name_of_size(40));
  input.geometry.has_charge_and_multiplicity = true;
  input.geometry.charge = std::numeric_limits<std::int32_t>::min();
  input.geometry.multiplicity = std::numeric_limits<std::int32_t>::min();
  input.geometry.kind = GeometryKind::XyzTrajectory;
  input.geometry.xyz_files = {name_of_size(60)};
  input.post_commands = {raw_line()};
  const std::string text = input.to_string();
  EXPECT_EQ(text.capacity(), capacity_reserved_for(text.size()));
}

}  // namespace
}  // namespace kelp::input::quill
