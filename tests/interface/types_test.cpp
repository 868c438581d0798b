#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/reader.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

// Vectors move their elements only when that cannot throw.
template <typename T>
constexpr bool is_plain_value() {
  static_assert(std::is_default_constructible_v<T>);
  static_assert(std::is_copy_constructible_v<T>);
  static_assert(std::is_copy_assignable_v<T>);
  static_assert(std::is_nothrow_move_constructible_v<T>);
  static_assert(std::is_nothrow_move_assignable_v<T>);
  static_assert(std::is_nothrow_destructible_v<T>);
  static_assert(std::is_nothrow_swappable_v<T>);
  static_assert(!std::is_polymorphic_v<T>);
  return true;
}

static_assert(is_plain_value<CommandParameter>());
static_assert(is_plain_value<HeaderCommand>());
static_assert(is_plain_value<AtomRecord>());
static_assert(is_plain_value<GeometryBlock>());
static_assert(is_plain_value<PostCommand>());
static_assert(is_plain_value<QuillInput>());
static_assert(is_plain_value<ParseResult>());
static_assert(is_plain_value<LineRecord>());
static_assert(is_plain_value<ParsedLines>());

template <typename Kind>
constexpr bool is_32_bit_kind() {
  static_assert(std::is_same_v<std::underlying_type_t<Kind>, std::int32_t>);
  static_assert(!std::is_convertible_v<Kind, std::int32_t>, "the enumeration is scoped");
  return true;
}

static_assert(is_32_bit_kind<HeaderCommandKind>());
static_assert(is_32_bit_kind<GeometryKind>());
static_assert(is_32_bit_kind<PostCommandKind>());

static_assert(HeaderCommandKind::Flag == HeaderCommandKind{0});
static_assert(HeaderCommandKind::Assignment == HeaderCommandKind{1});
static_assert(HeaderCommandKind::ParameterList == HeaderCommandKind{2});

static_assert(GeometryKind::None == GeometryKind{0});
static_assert(GeometryKind::Atoms == GeometryKind{1});
static_assert(GeometryKind::XyzFile == GeometryKind{2});
static_assert(GeometryKind::XyzTrajectory == GeometryKind{3});

static_assert(PostCommandKind::AtomConstraint == PostCommandKind{0});
static_assert(PostCommandKind::BondConstraint == PostCommandKind{1});
static_assert(PostCommandKind::AngleConstraint == PostCommandKind{2});
static_assert(PostCommandKind::DihedralConstraint == PostCommandKind{3});
static_assert(PostCommandKind::Scan == PostCommandKind{4});
static_assert(PostCommandKind::PostFile == PostCommandKind{5});
static_assert(PostCommandKind::Raw == PostCommandKind{6});

static_assert(LineRole::Blank == LineRole{0});
static_assert(LineRole::Command == LineRole{1});
static_assert(LineRole::ChargeAndMultiplicity == LineRole{2});
static_assert(LineRole::Atom == LineRole{3});
static_assert(LineRole::XyzReference == LineRole{4});
static_assert(LineRole::Trajectory == LineRole{5});
static_assert(LineRole::PostCommand == LineRole{6});
static_assert(LineRole::Dropped == LineRole{7});

template <typename Member, typename Type>
constexpr bool is = std::is_same_v<Member, Type>;

using OptionalString = std::optional<std::string>;
using Strings = std::vector<std::string>;

static_assert(is<decltype(CommandParameter::name), std::string>);
static_assert(is<decltype(CommandParameter::value), OptionalString>);
static_assert(is<decltype(HeaderCommand::name), std::string>);
static_assert(is<decltype(HeaderCommand::kind), HeaderCommandKind>);
static_assert(is<decltype(HeaderCommand::value), OptionalString>);
static_assert(is<decltype(HeaderCommand::parameters), std::vector<CommandParameter>>);
static_assert(is<decltype(AtomRecord::symbol), std::string>);
static_assert(is<decltype(AtomRecord::x), double>);
static_assert(is<decltype(AtomRecord::y), double>);
static_assert(is<decltype(AtomRecord::z), double>);
static_assert(is<decltype(GeometryBlock::kind), GeometryKind>);
static_assert(is<decltype(GeometryBlock::charge), std::int32_t>);
static_assert(is<decltype(GeometryBlock::multiplicity), std::int32_t>);
static_assert(is<decltype(GeometryBlock::has_charge_and_multiplicity), bool>);
static_assert(is<decltype(GeometryBlock::atoms), std::vector<AtomRecord>>);
static_assert(is<decltype(GeometryBlock::xyz_files), Strings>);
static_assert(is<decltype(PostCommand::kind), PostCommandKind>);
static_assert(is<decltype(PostCommand::atom_indices), std::vector<std::int32_t>>);
static_assert(is<decltype(PostCommand::scan_value), std::optional<double>>);
static_assert(is<decltype(PostCommand::scan_steps), std::optional<std::int32_t>>);
static_assert(is<decltype(PostCommand::post_file), std::string>);
static_assert(is<decltype(PostCommand::raw_text), std::string>);
static_assert(is<decltype(QuillInput::commands), std::vector<HeaderCommand>>);
static_assert(is<decltype(QuillInput::geometry), GeometryBlock>);
static_assert(is<decltype(QuillInput::post_commands), std::vector<PostCommand>>);
static_assert(is<decltype(ParseResult::input), QuillInput>);
static_assert(is<decltype(ParseResult::ok), bool>);
static_assert(is<decltype(ParseResult::error), std::string>);
static_assert(is<decltype(ParseResult::warnings), Strings>);

// A structured binding takes every member, in the order of declaration: if a member is added or
// removed, or two change places, this does not compile or fails.

TEST(Types, AParameterHasANameAndPerhapsAValue) {
  CommandParameter parameter;
  auto& [name, value] = parameter;
  EXPECT_EQ(&name, &parameter.name);
  EXPECT_EQ(&value, &parameter.value);
  EXPECT_EQ(name, "");
  EXPECT_EQ(value, std::nullopt);
}

TEST(Types, ACommandIsAFlagWithoutValueAndParametersAtFirst) {
  HeaderCommand command;
  auto& [name, kind, value, parameters] = command;
  EXPECT_EQ(&name, &command.name);
  EXPECT_EQ(&value, &command.value);
  EXPECT_EQ(name, "");
  EXPECT_EQ(kind, HeaderCommandKind::Flag);
  EXPECT_EQ(value, std::nullopt);
  EXPECT_TRUE(parameters.empty());
}

TEST(Types, AnAtomIsAtTheOriginAtFirst) {
  AtomRecord atom;
  auto& [symbol, x, y, z] = atom;
  EXPECT_EQ(&x, &atom.x);
  EXPECT_EQ(&y, &atom.y);
  EXPECT_EQ(&z, &atom.z);
  EXPECT_EQ(symbol, "");
  EXPECT_EQ(x, 0.0);
  EXPECT_EQ(y, 0.0);
  EXPECT_EQ(z, 0.0);
}

TEST(Types, AGeometryIsNeutralSingletAndEmptyAtFirst) {
  GeometryBlock geometry;
  auto& [kind, charge, multiplicity, has_line, atoms, xyz_files] = geometry;
  EXPECT_EQ(&charge, &geometry.charge);
  EXPECT_EQ(&multiplicity, &geometry.multiplicity);
  EXPECT_EQ(kind, GeometryKind::None);
  EXPECT_EQ(charge, 0);
  EXPECT_EQ(multiplicity, 1);
  EXPECT_FALSE(has_line);
  EXPECT_TRUE(atoms.empty());
  EXPECT_TRUE(xyz_files.empty());
}

TEST(Types, APostCommandHasNoContentAtFirst) {
  PostCommand command;
  auto& [kind, atom_indices, scan_value, scan_steps, post_file, raw_text] = command;
  EXPECT_EQ(&kind, &command.kind);
  EXPECT_EQ(&post_file, &command.post_file);
  EXPECT_EQ(&raw_text, &command.raw_text);
  EXPECT_TRUE(atom_indices.empty());
  EXPECT_EQ(scan_value, std::nullopt);
  EXPECT_EQ(scan_steps, std::nullopt);
  EXPECT_EQ(post_file, "");
  EXPECT_EQ(raw_text, "");
}

TEST(Types, AnInputHasNoSectionsAtFirst) {
  const QuillInput input;
  const auto& [commands, geometry, post_commands] = input;
  EXPECT_TRUE(commands.empty());
  EXPECT_EQ(geometry, GeometryBlock());
  EXPECT_TRUE(post_commands.empty());
}

TEST(Types, AResultIsNotReadAtFirst) {
  ParseResult result;
  auto& [input, ok, error, warnings] = result;
  EXPECT_EQ(&error, &result.error);
  EXPECT_EQ(input, QuillInput());
  EXPECT_FALSE(ok);
  EXPECT_EQ(error, "");
  EXPECT_TRUE(warnings.empty());
}

TEST(Types, KindsOutsideTheirEnumerationAreKept) {
  EXPECT_EQ(static_cast<std::int32_t>(HeaderCommand{"x", HeaderCommandKind{-5}}.kind), -5);
  EXPECT_EQ(static_cast<std::int32_t>(GeometryBlock{GeometryKind{99}}.kind), 99);
  EXPECT_EQ(static_cast<std::int32_t>(PostCommand{PostCommandKind{7}}.kind), 7);
}

}  // namespace

}  // namespace kelp::input::quill
