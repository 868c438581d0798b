#include "quill-inp/formats/composition.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::vector<std::string> symbols;
  std::string_view formula;
};

class HillFormula : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoAtoms", {}, ""},
    {"OneAtom", {"He"}, "He"},
    {"CarbonThenHydrogenThenTheRest", {"O", "H", "Br", "C", "H", "C"}, "C2H2BrO"},
    {"CarbonWithoutHydrogen", {"O", "C", "B"}, "CBO"},
    {"WithoutCarbonHydrogenIsOneOfTheRest", {"Pt", "N", "H", "H", "Cl"}, "ClH2NPt"},
    {"CobaltIsNotCarbon", {"Co", "H"}, "CoH"},
    {"TenOfAKind", {"C", "C", "C", "C", "C", "C", "C", "C", "C", "C"}, "C10"},
    {"SymbolsThatAreNotAnElement", {"D", "A", "C", "H"}, "CHAD"},
};

TEST_P(HillFormula, CountsInOrder) {
  std::vector<AtomRecord> atoms;
  for (const std::string& symbol : GetParam().symbols) atoms.push_back({symbol, 0.0, 0.0, 0.0});
  EXPECT_EQ(to_formula(hill_composition(atoms)), GetParam().formula);
}

INSTANTIATE_TEST_SUITE_P(Table, HillFormula, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
