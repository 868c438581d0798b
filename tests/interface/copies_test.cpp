#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <type_traits>
#include <utility>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/reader.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

/// Too long to be stored inside a string object, so that a shared buffer would be noticed.
std::string long_text(const std::string& start) { return start + std::string(100, '.'); }

/// A result in which no member is empty.
ParseResult filled() {
  return {
      {{{long_text("opt"),
         HeaderCommandKind::ParameterList,
         long_text("value"),
         {{long_text("maxiter"), long_text("50")}}}},
       {GeometryKind::Atoms, -1, 2, true, {{long_text("O"), 1.0, 2.0, 3.0}}, {long_text("a.xyz")}},
       {{PostCommandKind::Scan, {1, 2}, 1.5, 10, long_text("out.dat"), long_text("raw")}}},
      true,
      long_text("error"),
      {long_text("warning")}};
}

struct ChangeRow {
  const char* name;
  void (*apply)(ParseResult& result);
};

void PrintTo(const ChangeRow& row, std::ostream* out) { *out << row.name; }

const ChangeRow change_rows[] = {
    {"Commands", [](ParseResult& result) { result.input.commands.emplace_back("sp"); }},
    {"NoCommands", [](ParseResult& result) { result.input.commands.clear(); }},
    {"CommandName", [](ParseResult& result) { result.input.commands[0].name[0] = 'X'; }},
    {"CommandKind",
     [](ParseResult& result) { result.input.commands[0].kind = HeaderCommandKind::Flag; }},
    {"CommandValue", [](ParseResult& result) { (*result.input.commands[0].value)[0] = 'X'; }},
    {"NoCommandValue", [](ParseResult& result) { result.input.commands[0].value.reset(); }},
    {"Parameters", [](ParseResult& result) { result.input.commands[0].parameters.clear(); }},
    {"ParameterName",
     [](ParseResult& result) { result.input.commands[0].parameters[0].name[0] = 'X'; }},
    {"ParameterValue",
     [](ParseResult& result) { (*result.input.commands[0].parameters[0].value)[0] = 'X'; }},
    {"GeometryKind",
     [](ParseResult& result) { result.input.geometry.kind = GeometryKind::XyzFile; }},
    {"Charge", [](ParseResult& result) { result.input.geometry.charge = 5; }},
    {"Multiplicity", [](ParseResult& result) { result.input.geometry.multiplicity = 5; }},
    {"HasChargeAndMultiplicity",
     [](ParseResult& result) { result.input.geometry.has_charge_and_multiplicity = false; }},
    {"Atoms", [](ParseResult& result) { result.input.geometry.atoms.push_back({"H"}); }},
    {"AtomSymbol", [](ParseResult& result) { result.input.geometry.atoms[0].symbol[0] = 'X'; }},
    {"AtomX", [](ParseResult& result) { result.input.geometry.atoms[0].x = 9.0; }},
    {"AtomY", [](ParseResult& result) { result.input.geometry.atoms[0].y = 9.0; }},
    {"AtomZ", [](ParseResult& result) { result.input.geometry.atoms[0].z = 9.0; }},
    {"XyzFiles", [](ParseResult& result) { result.input.geometry.xyz_files.clear(); }},
    {"XyzFile", [](ParseResult& result) { result.input.geometry.xyz_files[0][0] = 'X'; }},
    {"PostCommands", [](ParseResult& result) { result.input.post_commands.clear(); }},
    {"PostKind",
     [](ParseResult& result) { result.input.post_commands[0].kind = PostCommandKind::Raw; }},
    {"AtomIndices", [](ParseResult& result) { result.input.post_commands[0].atom_indices[0] = 9; }},
    {"ScanValue", [](ParseResult& result) { result.input.post_commands[0].scan_value = 9.0; }},
    {"ScanSteps", [](ParseResult& result) { result.input.post_commands[0].scan_steps = 9; }},
    {"PostFile", [](ParseResult& result) { result.input.post_commands[0].post_file[0] = 'X'; }},
    {"RawText", [](ParseResult& result) { result.input.post_commands[0].raw_text[0] = 'X'; }},
    {"Ok", [](ParseResult& result) { result.ok = false; }},
    {"Error", [](ParseResult& result) { result.error[0] = 'X'; }},
    {"Warnings", [](ParseResult& result) { result.warnings.clear(); }},
    {"Warning", [](ParseResult& result) { result.warnings[0][0] = 'X'; }},
};

class Copy : public testing::TestWithParam<ChangeRow> {};

TEST_P(Copy, CanBeChangedWithoutChangingItsSource) {
  const ParseResult source = filled();
  ParseResult copy = source;
  ASSERT_EQ(copy, source);
  GetParam().apply(copy);
  EXPECT_NE(copy, filled());
  EXPECT_EQ(source, filled());
}

TEST_P(Copy, DoesNotChangeWithItsSource) {
  ParseResult source = filled();
  const ParseResult copy = source;
  GetParam().apply(source);
  EXPECT_EQ(copy, filled());
}

TEST_P(Copy, MadeByAssignmentIsIndependentToo) {
  const ParseResult source = filled();
  ParseResult copy;
  copy.warnings = {"replaced"};
  copy = source;
  ASSERT_EQ(copy, source);
  GetParam().apply(copy);
  EXPECT_NE(copy, filled());
  EXPECT_EQ(source, filled());
}

INSTANTIATE_TEST_SUITE_P(OfEveryMember, Copy, testing::ValuesIn(change_rows),
                         [](const auto& row) { return std::string(row.param.name); });

template <typename T>
class EveryType : public testing::Test {};

/// The piece of this type in a result.
template <typename T>
T piece_of(ParseResult result) {
  if constexpr (std::is_same_v<T, ParseResult>) {
    return result;
  } else if constexpr (std::is_same_v<T, QuillInput>) {
    return result.input;
  } else if constexpr (std::is_same_v<T, GeometryBlock>) {
    return result.input.geometry;
  } else if constexpr (std::is_same_v<T, AtomRecord>) {
    return result.input.geometry.atoms.at(0);
  } else if constexpr (std::is_same_v<T, PostCommand>) {
    return result.input.post_commands.at(0);
  } else if constexpr (std::is_same_v<T, HeaderCommand>) {
    return result.input.commands.at(0);
  } else {
    return result.input.commands.at(0).parameters.at(0);
  }
}

/// The address of the first buffer that a piece owns: a move passes it on, a copy makes another.
const void* buffer_of(const CommandParameter& piece) { return piece.name.data(); }
const void* buffer_of(const HeaderCommand& piece) { return piece.parameters.data(); }
const void* buffer_of(const AtomRecord& piece) { return piece.symbol.data(); }
const void* buffer_of(const GeometryBlock& piece) { return piece.atoms.data(); }
const void* buffer_of(const PostCommand& piece) { return piece.atom_indices.data(); }
const void* buffer_of(const QuillInput& piece) { return piece.commands.data(); }
const void* buffer_of(const ParseResult& piece) { return piece.warnings.data(); }

using Types = testing::Types<CommandParameter, HeaderCommand, AtomRecord, GeometryBlock,
                             PostCommand, QuillInput, ParseResult>;

const char* name_of(const CommandParameter&) { return "CommandParameter"; }
const char* name_of(const HeaderCommand&) { return "HeaderCommand"; }
const char* name_of(const AtomRecord&) { return "AtomRecord"; }
const char* name_of(const GeometryBlock&) { return "GeometryBlock"; }
const char* name_of(const PostCommand&) { return "PostCommand"; }
const char* name_of(const QuillInput&) { return "QuillInput"; }
const char* name_of(const ParseResult&) { return "ParseResult"; }

struct TypeName {
  template <typename T>
  static std::string GetName(int) {
    return name_of(T());
  }
};

TYPED_TEST_SUITE(EveryType, Types, TypeName);

TYPED_TEST(EveryType, IsCopiedWithBuffersOfItsOwn) {
  const auto source = piece_of<TypeParam>(filled());
  const auto copy = source;
  EXPECT_EQ(copy, source);
  EXPECT_NE(buffer_of(copy), buffer_of(source));
}

TYPED_TEST(EveryType, OutlivesTheSourceOfItsCopy) {
  auto source = std::make_optional(piece_of<TypeParam>(filled()));
  const TypeParam copy = *source;
  source.reset();
  EXPECT_EQ(copy, piece_of<TypeParam>(filled()));
}

TYPED_TEST(EveryType, IsMovedWithoutACopy) {
  auto source = piece_of<TypeParam>(filled());
  const void* const buffer = buffer_of(source);
  TypeParam constructed = std::move(source);
  EXPECT_EQ(buffer_of(constructed), buffer);
  TypeParam assigned{};
  assigned = std::move(constructed);
  EXPECT_EQ(buffer_of(assigned), buffer);
  EXPECT_EQ(assigned, piece_of<TypeParam>(filled()));
}

TYPED_TEST(EveryType, CanBeAssignedToItself) {
  auto piece = piece_of<TypeParam>(filled());
  const TypeParam& same = piece;
  piece = same;
  EXPECT_EQ(piece, piece_of<TypeParam>(filled()));
}

TYPED_TEST(EveryType, IsMovedWhenAVectorOfItGrows) {
  std::vector<TypeParam> pieces(1, piece_of<TypeParam>(filled()));
  const void* const buffer = buffer_of(pieces.front());
  pieces.reserve(pieces.capacity() + 1);
  EXPECT_EQ(buffer_of(pieces.front()), buffer);
}

}  // namespace

}  // namespace kelp::input::quill
