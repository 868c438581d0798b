#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"AnOddNumberOfElectrons",
     "#opt\n"
     "0 1\n"
     "  ^ QL601 the multiplicity 1 is not possible with 9 electrons\n"
     "O 0 0 0\n"
     "H 0 0 0.97\n"},
    {"TheIonHasAnEvenNumber",
     "#opt\n"
     "-1 1\n"
     "O 0 0 0\n"
     "H 0 0 0.97\n"},
    {"MorePartnersThanElectrons",
     "#opt\n"
     "0 4\n"
     "  ^ QL601 the multiplicity 4 is not possible with 2 electrons\n"
     "He 0 0 0\n"},
    {"AsManyUnpairedElectronsAsThereAre",
     "#opt\n"
     "0 3\n"
     "He 0 0 0\n"},
    {"NoElectronsAtAll",
     "#sp\n"
     "1 1\n"
     "H 0 0 0\n"},
    {"FewerThanNoElectrons",
     "#sp\n"
     "2 1\n"
     "  ^ QL601 the multiplicity 1 is not possible with -1 electrons\n"
     "H 0 0 0\n"},
    {"AnUnknownElementHasNoElectrons",
     "#sp\n"
     "0 2\n"
     "Xx 0 0 0\n"
     "^^ QL112 unknown element symbol 'Xx'\n"},
    {"AtomsThatAreLostHaveNoElectrons",
     "#sp\n"
     "0 1\n"
     "O 0 0 0\n"
     "H1 0 0 0.97\n"
     "^^ QL101 the atoms end after 1 atom: 'H1' is not a symbol made of letters\n"},
    {"TwoAtomsInOnePlace",
     "#sp\n"
     "0 1\n"
     "He 0 0 0\n"
     "He 0 0 3\n"
     "He 0 0 0.0\n"
     "^^^^^^^^^^ QL602 atom 3 is only 0 from atom 1\n"},
    {"TwoAtomsThatAreClose",
     "#sp\n"
     "0 1\n"
     "He 0 0 0\n"
     "He 0.17 0.17 0.17\n"
     "^^^^^^^^^^^^^^^^^ QL602 atom 2 is only 0.29 from atom 1\n"
     "He 0 0 5\n"
     "He 0 0.3 5\n"},
};

class ChemistryRules : public MarkedRows {};

TEST_P(ChemistryRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, ChemistryRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
