#include <gtest/gtest.h>

#include <utility>

#include "kelp/core/geometry.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

// The ways in which programs initialise the data types with braces. The build compiles this file as
// C++20 and C++23 too, which have other rules for aggregates.

namespace kelp::input::quill {

namespace {

constexpr auto parameter_list = HeaderCommandKind::ParameterList;

CommandParameter parameter(std::string name, std::optional<std::string> value) {
  CommandParameter result;
  result.name = std::move(name);
  result.value = std::move(value);
  return result;
}

AtomRecord atom(std::string symbol, double x, double y, double z) {
  AtomRecord result;
  result.symbol = std::move(symbol);
  result.x = x;
  result.y = y;
  result.z = z;
  return result;
}

TEST(BraceInitialisation, OfAParameter) {
  EXPECT_EQ((CommandParameter{"maxiter", "50"}), parameter("maxiter", "50"));
  EXPECT_EQ((CommandParameter{"tight"}), parameter("tight", std::nullopt));
  EXPECT_EQ((CommandParameter{"tight", std::nullopt}), parameter("tight", std::nullopt));
  EXPECT_EQ((CommandParameter{"tight", {}}), parameter("tight", std::nullopt));
  EXPECT_EQ((CommandParameter{"basis", ""}), parameter("basis", ""));
  EXPECT_EQ((CommandParameter{{}, {}}), parameter("", std::nullopt));
  EXPECT_EQ(CommandParameter{}, parameter("", std::nullopt));
  const CommandParameter copied = {"maxiter", "50"};
  EXPECT_EQ(copied, parameter("maxiter", "50"));
}

TEST(BraceInitialisation, OfAParameterFromStrings) {
  const std::string name = "maxiter";
  const std::optional<std::string> value = "50";
  EXPECT_EQ((CommandParameter{name, value}), parameter("maxiter", "50"));
  EXPECT_EQ((CommandParameter{name, *value}), parameter("maxiter", "50"));
  EXPECT_EQ(CommandParameter{name}, parameter("maxiter", std::nullopt));
}

TEST(BraceInitialisation, OfAListOfParameters) {
  const std::vector<CommandParameter> expected = {parameter("maxiter", "50"),
                                                  parameter("tight", std::nullopt)};
  EXPECT_EQ((std::vector<CommandParameter>{{"maxiter", "50"}, {"tight"}}), expected);
  EXPECT_EQ((std::vector<CommandParameter>{{"tight"}}).size(), 1U);
  EXPECT_EQ((std::vector<CommandParameter>{{"maxiter", "50"}}).size(), 1U);
  EXPECT_EQ((std::vector<CommandParameter>{{"a"}, {"b"}}).size(), 2U);

  std::vector<CommandParameter> grown;
  grown.push_back({"maxiter", "50"});
  grown.emplace_back("tight");
  EXPECT_EQ(grown, expected);
}

TEST(BraceInitialisation, OfACommand) {
  HeaderCommand expected;
  expected.name = "opt";
  EXPECT_EQ(HeaderCommand{"opt"}, expected);
  EXPECT_EQ((HeaderCommand{"opt", HeaderCommandKind::Flag}), expected);
  EXPECT_EQ((HeaderCommand{"opt", {}, {}, {}}), expected);

  expected.kind = HeaderCommandKind::Assignment;
  expected.value = "m1";
  EXPECT_EQ((HeaderCommand{"opt", HeaderCommandKind::Assignment, "m1"}), expected);
  EXPECT_EQ((HeaderCommand{"opt", HeaderCommandKind::Assignment, "m1", {}}), expected);
}

TEST(BraceInitialisation, OfACommandWithParameters) {
  HeaderCommand expected;
  expected.name = "opt";
  expected.kind = HeaderCommandKind::ParameterList;
  expected.parameters.push_back(parameter("tight", std::nullopt));
  EXPECT_EQ((HeaderCommand{"opt", parameter_list, {}, {{"tight"}}}), expected);
  EXPECT_EQ((HeaderCommand{"opt", parameter_list, std::nullopt, {{"tight"}}}), expected);

  expected.parameters.push_back(parameter("maxiter", "50"));
  EXPECT_EQ((HeaderCommand{"opt", parameter_list, {}, {{"tight"}, {"maxiter", "50"}}}), expected);
}

TEST(BraceInitialisation, OfAListOfCommands) {
  const std::vector<HeaderCommand> commands = {
      {"opt"}, {"model", HeaderCommandKind::Assignment, "m1"}, {"scan", parameter_list}};
  ASSERT_EQ(commands.size(), 3U);
  EXPECT_EQ(commands[0], HeaderCommand{"opt"});
  EXPECT_EQ(commands[1], (HeaderCommand{"model", HeaderCommandKind::Assignment, "m1", {}}));
  EXPECT_EQ(commands[2], (HeaderCommand{"scan", parameter_list, {}, {}}));

  std::vector<HeaderCommand> grown;
  grown.push_back({"opt"});
  grown.emplace_back("freq");
  EXPECT_EQ(grown, (std::vector<HeaderCommand>{{"opt"}, {"freq"}}));
}

TEST(BraceInitialisation, OfAnAtom) {
  EXPECT_EQ((AtomRecord{"O", 0.0, 0.0, 0.1173}), atom("O", 0.0, 0.0, 0.1173));
  EXPECT_EQ((AtomRecord{"H", 1, 2, 3}), atom("H", 1.0, 2.0, 3.0));
  EXPECT_EQ(AtomRecord{"He"}, atom("He", 0.0, 0.0, 0.0));
  EXPECT_EQ(AtomRecord{}, atom("", 0.0, 0.0, 0.0));
  std::vector<AtomRecord> atoms = {{"O", 1.0, 2.0, 3.0}};
  atoms.push_back({"H", 4.0, 5.0, 6.0});
  EXPECT_EQ(atoms, (std::vector<AtomRecord>{atom("O", 1.0, 2.0, 3.0), atom("H", 4.0, 5.0, 6.0)}));
}

TEST(BraceInitialisation, OfAGeometry) {
  GeometryBlock expected;
  EXPECT_EQ(GeometryBlock{}, expected);
  expected.kind = GeometryKind::Atoms;
  EXPECT_EQ(GeometryBlock{GeometryKind::Atoms}, expected);
  expected.charge = -1;
  expected.multiplicity = 2;
  expected.has_charge_and_multiplicity = true;
  EXPECT_EQ((GeometryBlock{GeometryKind::Atoms, -1, 2, true}), expected);
  expected.atoms.push_back(atom("O", 1.0, 2.0, 3.0));
  EXPECT_EQ((GeometryBlock{GeometryKind::Atoms, -1, 2, true, {{"O", 1.0, 2.0, 3.0}}}), expected);
  expected.xyz_files.emplace_back("a.xyz");
  EXPECT_EQ((GeometryBlock{GeometryKind::Atoms, -1, 2, true, {{"O", 1, 2, 3}}, {"a.xyz"}}),
            expected);
  expected.xyz_files.emplace_back("b.xyz");
  EXPECT_EQ((GeometryBlock{GeometryKind::Atoms, -1, 2, true, {{"O", 1, 2, 3}}, {"a.xyz", "b.xyz"}}),
            expected);
}

TEST(BraceInitialisation, OfAPostCommand) {
  PostCommand expected;
  expected.kind = PostCommandKind::Scan;
  EXPECT_EQ(PostCommand{PostCommandKind::Scan}, expected);
  expected.atom_indices = {1, 2};
  EXPECT_EQ((PostCommand{PostCommandKind::Scan, {1, 2}}), expected);
  expected.scan_value = 1.5;
  EXPECT_EQ((PostCommand{PostCommandKind::Scan, {1, 2}, 1.5}), expected);
  expected.scan_steps = 10;
  EXPECT_EQ((PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10}), expected);
  expected.post_file = "out.dat";
  EXPECT_EQ((PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10, "out.dat"}), expected);
  expected.raw_text = "text";
  EXPECT_EQ((PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10, "out.dat", "text"}), expected);
}

TEST(BraceInitialisation, OfAPostCommandThatLeavesMembersEmpty) {
  PostCommand expected;
  expected.kind = PostCommandKind::Raw;
  expected.raw_text = "text";
  EXPECT_EQ((PostCommand{PostCommandKind::Raw, {}, {}, {}, {}, "text"}), expected);
  EXPECT_EQ((PostCommand{PostCommandKind::Raw, {}, std::nullopt, std::nullopt, "", "text"}),
            expected);
  const std::vector<PostCommand> commands = {{PostCommandKind::AtomConstraint, {7}},
                                             {PostCommandKind::Scan, {1, 2}, {}, 10}};
  ASSERT_EQ(commands.size(), 2U);
  EXPECT_EQ(commands[0].atom_indices, std::vector<std::int32_t>{7});
  EXPECT_EQ(commands[1].scan_value, std::nullopt);
  EXPECT_EQ(commands[1].scan_steps, 10);
}

TEST(BraceInitialisation, OfAnInput) {
  QuillInput expected;
  expected.commands.emplace_back("opt");
  EXPECT_EQ((QuillInput{{{"opt"}}}), expected);
  EXPECT_EQ((QuillInput{{HeaderCommand{"opt"}}}), expected);
  EXPECT_EQ((QuillInput{{{"opt"}}, {}}), expected);
  EXPECT_EQ((QuillInput{{{"opt"}}, {}, {}}), expected);

  expected.commands.emplace_back("freq");
  EXPECT_EQ((QuillInput{{{"opt"}, {"freq"}}}), expected);

  expected.geometry.kind = GeometryKind::Atoms;
  EXPECT_EQ((QuillInput{{{"opt"}, {"freq"}}, {GeometryKind::Atoms}}), expected);
  expected.geometry.atoms.push_back(atom("O", 1.0, 2.0, 3.0));
  EXPECT_EQ(
      (QuillInput{{{"opt"}, {"freq"}}, {GeometryKind::Atoms, 0, 1, false, {{"O", 1, 2, 3}}, {}}}),
      expected);

  expected.post_commands.emplace_back(PostCommandKind::BondConstraint);
  EXPECT_EQ((QuillInput{{{"opt"}, {"freq"}},
                        {GeometryKind::Atoms, 0, 1, false, {{"O", 1, 2, 3}}},
                        {{PostCommandKind::BondConstraint}}}),
            expected);
}

TEST(BraceInitialisation, OfAnInputWithoutAHeader) {
  QuillInput expected;
  EXPECT_EQ(QuillInput{}, expected);
  EXPECT_EQ((QuillInput{{}, {}, {}}), expected);
  expected.geometry.kind = GeometryKind::XyzFile;
  EXPECT_EQ((QuillInput{{}, {GeometryKind::XyzFile}}), expected);
  expected.post_commands.emplace_back(PostCommandKind::Raw);
  EXPECT_EQ((QuillInput{{}, {GeometryKind::XyzFile}, {{PostCommandKind::Raw}}}), expected);
}

TEST(BraceInitialisation, OfAResult) {
  ParseResult expected;
  EXPECT_EQ(ParseResult{}, expected);
  expected.ok = true;
  EXPECT_EQ((ParseResult{{}, true}), expected);
  EXPECT_EQ((ParseResult{QuillInput{}, true, "", {}}), expected);
  expected.warnings.emplace_back("Line 1: x");
  EXPECT_EQ((ParseResult{{}, true, {}, {"Line 1: x"}}), expected);
  expected.warnings.emplace_back("Line 2: y");
  expected.error = "error";
  EXPECT_EQ((ParseResult{{}, true, "error", {"Line 1: x", "Line 2: y"}}), expected);
  expected.input.commands.emplace_back("opt");
  EXPECT_EQ((ParseResult{{{{"opt"}}}, true, "error", {"Line 1: x", "Line 2: y"}}), expected);
}

TEST(BraceInitialisation, OfAResultWithADocumentAlone) {
  ParseResult expected;
  expected.input.commands.emplace_back("opt");
  EXPECT_EQ(ParseResult{expected.input}, expected);
  EXPECT_EQ((ParseResult{{{{"opt"}}}}), expected);
}

TEST(BraceInitialisation, OfArgumentsOfTheEditor) {
  InputEditor editor(QuillInput{});
  editor.set_task("opt", {{"maxiter", "50"}, {"tight"}});
  editor.add_command({"freq"});
  editor.add_atom(AtomRecord{"O", 0.0, 0.0, 0.1173});
  editor.add_post_command({PostCommandKind::BondConstraint, {1, 2}});
  EXPECT_EQ(editor.document(),
            (QuillInput{{{"opt", parameter_list, {}, {{"maxiter", "50"}, {"tight"}}}, {"freq"}},
                        {GeometryKind::Atoms, 0, 1, false, {{"O", 0.0, 0.0, 0.1173}}},
                        {{PostCommandKind::BondConstraint, {1, 2}}}}));
}

}  // namespace

}  // namespace kelp::input::quill
