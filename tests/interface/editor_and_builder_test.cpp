#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "kelp/core/geometry.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

// For any calls, an editor with an empty document and a builder give the same document. The calls
// are random, with few names, so that they often change what earlier calls have stored; each
// sequence has a seed, and the same seed gives the same sequence everywhere.

namespace kelp::input::quill {

namespace {

/// Draws arguments. The distributions of the standard library differ from one library to another,
/// so the numbers are taken as the engine gives them.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  std::size_t below(std::size_t end) { return engine_() % end; }

  template <typename T, std::size_t size>
  const T& one_of(const std::array<T, size>& values) {
    return values[below(size)];
  }

  std::string name() {
    static const std::array<std::string, 10> names = {
        "opt",    "OPT",
        " #Opt ", "model",
        "Model",  "",
        "#",      "device",
        "##opt",  "a command name that is too long for the inside of a string"};
    return one_of(names);
  }

  std::string text() {
    static const std::array<std::string, 8> texts = {
        "",        "tight", " Tight ", "maxiter",
        "MAXITER", "50",    "a=b,(c)", "a text that is too long for the inside of a string"};
    return one_of(texts);
  }

  int number() {
    static const std::array<int, 6> numbers = {
        0, 1, 2, -5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    return one_of(numbers);
  }

  double coordinate() {
    static const std::array<double, 5> coordinates = {0.0, -0.0, 1.5, -0.4692, 1e300};
    return one_of(coordinates);
  }

  template <typename Make>
  auto up_to_three(Make make) {
    std::vector<decltype(make())> values(below(4));
    for (auto& value : values) value = make();
    return values;
  }

  CommandParameter parameter() {
    CommandParameter drawn(text());
    if (below(2) == 0) drawn.value = text();
    return drawn;
  }

  std::vector<CommandParameter> parameters() {
    return up_to_three([this] { return parameter(); });
  }

  HeaderCommand command() {
    HeaderCommand drawn(name(), HeaderCommandKind(below(4)));
    if (below(2) == 0) drawn.value = text();
    drawn.parameters = parameters();
    return drawn;
  }

  PostCommand post_command() {
    PostCommand drawn(PostCommandKind(below(8)), numbers());
    if (below(2) == 0) drawn.scan_value = coordinate();
    if (below(2) == 0) drawn.scan_steps = number();
    drawn.post_file = text();
    drawn.raw_text = text();
    return drawn;
  }

  std::vector<int> numbers() {
    return up_to_three([this] { return number(); });
  }

  std::vector<std::string> texts() {
    return up_to_three([this] { return text(); });
  }

  AtomRecord atom() { return {text(), coordinate(), coordinate(), coordinate()}; }

  kelp::core::Atom core_atom() { return {text(), coordinate(), coordinate(), coordinate()}; }

  std::vector<AtomRecord> atoms() {
    return up_to_three([this] { return atom(); });
  }

  kelp::core::Geometry core_geometry() {
    return {up_to_three([this] { return core_atom(); })};
  }

 private:
  std::mt19937 engine_;
};

/// The same call, for the editor and for the builder.
struct Step {
  std::function<void(InputEditor&)> edit;
  std::function<void(InputBuilder&)> build;
};

template <typename Call>
Step step(Call call) {
  return {call, call};
}

Step draw_header_step(Dice& dice, std::size_t operation) {
  const std::string name = dice.name();
  const std::string key = dice.text();
  const std::string value = dice.text();
  const HeaderCommand command = dice.command();
  const std::vector<CommandParameter> parameters = dice.parameters();
  switch (operation) {
    case 0:
      return step([=](auto& author) { author.set_task(name, parameters); });
    case 1:
      return {[=](InputEditor& editor) { editor.set_parameter(name, key, value, 0); },
              [=](InputBuilder& builder) { builder.set_task_parameter(name, key, value); }};
    case 2:
      return step([=](auto& author) { author.set_model(value); });
    case 3:
      return step([=](auto& author) { author.set_device(value); });
    case 4:
      return step([=](auto& author) { author.set_assignment(name, value); });
    case 5:
      return step([=](auto& author) { author.set_flag(name); });
    case 6:
      return step([=](auto& author) { author.add_command(command); });
    default:
      return step([=](auto& author) { author.add_command(HeaderCommand(command)); });
  }
}

Step draw_geometry_step(Dice& dice, std::size_t operation) {
  const int charge = dice.number();
  const int multiplicity = dice.number();
  const std::string path = dice.text();
  const std::vector<std::string> files = dice.texts();
  const std::vector<AtomRecord> atoms = dice.atoms();
  const AtomRecord atom = dice.atom();
  const kelp::core::Geometry core_geometry = dice.core_geometry();
  const kelp::core::Atom core_atom = dice.core_atom();
  switch (operation) {
    case 0:
      return step([=](auto& author) { author.set_charge_and_multiplicity(charge, multiplicity); });
    case 1:
      return step([](auto& author) { author.clear_charge_and_multiplicity(); });
    case 2:
      return step([=](auto& author) { author.set_geometry(atoms); });
    case 3:
      return step([=](auto& author) { author.set_geometry(core_geometry); });
    case 4:
      return step([=](auto& author) { author.add_atom(atom); });
    case 5:
      return step([=](auto& author) { author.add_atom(core_atom); });
    case 6:
      return step([=](auto& author) { author.set_xyz_files(files); });
    case 7:
      return step([=](auto& author) { author.set_xyz_file(path); });
    default:
      return step([=](auto& author) { author.set_xyz_trajectory(path); });
  }
}

Step draw_post_step(Dice& dice, std::size_t operation) {
  const int a = dice.number();
  const int b = dice.number();
  const int c = dice.number();
  const int d = dice.number();
  const double value = dice.coordinate();
  const std::string path = dice.text();
  const std::vector<int> numbers = dice.numbers();
  const PostCommand command = dice.post_command();
  switch (operation) {
    case 0:
      return step([=](auto& author) { author.add_atom_constraint(a); });
    case 1:
      return step([=](auto& author) { author.add_bond_constraint(a, b); });
    case 2:
      return step([=](auto& author) { author.add_angle_constraint(a, b, c); });
    case 3:
      return step([=](auto& author) { author.add_dihedral_constraint(a, b, c, d); });
    case 4:
      return step([=](auto& author) { author.add_scan(numbers, value, a); });
    case 5:
      return step([=](auto& author) { author.set_post_file(path); });
    case 6:
      return step([=](auto& author) { author.add_post_command(command); });
    default:
      return step([=](auto& author) { author.add_post_command(PostCommand(command)); });
  }
}

constexpr std::size_t header_operations = 8;
constexpr std::size_t geometry_operations = 9;
constexpr std::size_t post_operations = 8;
constexpr std::size_t operations = header_operations + geometry_operations + post_operations;

Step draw_step(Dice& dice, std::size_t operation) {
  if (operation < header_operations) return draw_header_step(dice, operation);
  if (operation < header_operations + geometry_operations)
    return draw_geometry_step(dice, operation - header_operations);
  return draw_post_step(dice, operation - header_operations - geometry_operations);
}

class EditorAndBuilder : public testing::TestWithParam<std::uint32_t> {};

TEST_P(EditorAndBuilder, HaveTheSameDocumentAfterEveryStep) {
  constexpr std::uint32_t sequences = 40;
  constexpr int steps = 30;
  for (std::uint32_t seed = GetParam(); seed < GetParam() + sequences; ++seed) {
    Dice dice(seed);
    InputEditor editor{QuillInput()};
    InputBuilder builder;
    for (int i = 0; i < steps; ++i) {
      const std::size_t operation = dice.below(operations);
      const Step step = draw_step(dice, operation);
      step.edit(editor);
      step.build(builder);
      ASSERT_EQ(builder.document(), editor.document())
          << "seed " << seed << ", step " << i << ", operation " << operation;
      ASSERT_EQ(builder.to_string(), editor.to_string())
          << "seed " << seed << ", step " << i << ", operation " << operation;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditorAndBuilder, testing::Range(1U, 401U, 40U));

TEST(EditorAndBuilderInTurn, MakeEveryOperation) {
  Dice dice(0);
  for (std::size_t operation = 0; operation < operations; ++operation) {
    InputEditor editor{QuillInput()};
    InputBuilder builder;
    const Step step = draw_step(dice, operation);
    step.edit(editor);
    step.build(builder);
    EXPECT_EQ(builder.document(), editor.document()) << "operation " << operation;
  }
}

}  // namespace

}  // namespace kelp::input::quill
