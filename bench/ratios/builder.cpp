#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "ratios/ratios.hpp"
#include "support/comparison.hpp"
#include "support/inputs.hpp"

namespace kelp::input::quill::bench {

namespace {

struct Operation {
  std::string name;
  void (*apply)(InputBuilder&);
};

std::vector<Operation> operations() {
  return {
      {"set_task_parameter",
       [](InputBuilder& builder) { builder.set_task_parameter("opt", "maxiter", "250"); }},
      {"set_model", [](InputBuilder& builder) { builder.set_model("general-organic"); }},
      {"add_atom",
       [](InputBuilder& builder) {
         builder.add_atom(AtomRecord{"H", 0, 0, 0.74});
       }},
      {"add_bond_constraint", [](InputBuilder& builder) { builder.add_bond_constraint(1, 2); }},
  };
}

InputBuilder builder_of(const QuillInput& input) {
  InputBuilder builder;
  builder.set_geometry(input.geometry.atoms)
      .set_charge_and_multiplicity(input.geometry.charge, input.geometry.multiplicity);
  for (const HeaderCommand& command : input.commands) builder.add_command(command);
  return builder;
}

/// Applies an operation many times. It sometimes starts again, since some make the document larger.
class Building {
 public:
  Building(const InputBuilder& start, const Operation& operation)
      : start_(start), builder_(start), apply_(operation.apply) {}

  void next() {
    constexpr int most_at_once = 64;
    if (++count_ % most_at_once == 0) builder_ = start_;
    apply_(builder_);
  }

  const QuillInput& document() const { return builder_.document(); }

 private:
  const InputBuilder& start_;
  InputBuilder builder_;
  void (*apply_)(InputBuilder&);
  int count_ = 0;
};

/// On a document so large that the operation itself costs nearly nothing compared with the copies.
void compare_with_copies(RatioTable& table, const InputBuilder& start, const Operation& operation) {
  Building building(start, operation);
  QuillInput target;
  const auto copy_twice = [&] {
    // The builder copies its document once and copies the copy back; both are what is timed.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const QuillInput copy(building.document());
    target = copy;
  };
  building.next();
  copy_twice();
  const std::string what = "builder " + operation.name + ", 10^4 atoms : two copies";
  require_same(target == building.document(), what);
  table.compare(
      what, [&] { building.next(); }, copy_twice, 1.08);
}

}  // namespace

void add_builder_ratios(RatioTable& table) {
  const InputBuilder start = builder_of(molecule(10'000));
  for (const Operation& operation : operations()) compare_with_copies(table, start, operation);
}

}  // namespace kelp::input::quill::bench
