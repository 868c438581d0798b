#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"ADroppedLineBeforeAnAngle",
     "#opt\n"
     "0 1\n"
     "O 0.0 0.0 0.117\n"
     "H 0.0 0.757 -0.469\n"
     "H 0.0 -0.757 -0.469\n"
     "B 1 x\n"
     "^^^^^ QL501 this line is lost when the input is rewritten, and line 7, 'A 2 1 3', is then "
     "read as something else\n"
     "A 2 1 3\n"},
    {"ADroppedLineBeforeABond",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "B 1 x\n"
     "    ^ QL301 the line is dropped: 'x' is not a number that 'B' takes\n"
     "B 1 2\n"},
    {"ANumberThatChanges",
     "#scan\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "S 1 2 1.2345678 10\n"
     "      ^^^^^^^^^ QL502 2 numbers change by up to 2.1e+02 when the input is rewritten\n"
     "S 1 2 123456789 10\n"
     "S 1 2 1.5 10\n"},
    {"RoundedNumbers",
     "#opt\n"
     "0 1\n"
     "He 0.1 0 0.12345678\n"
     "         ^^^^^^^^^^ QL504 2 numbers are rounded by up to 3e-07 when the input is rewritten\n"
     "He 0 0.1234567 5\n"
     "He 0 -10.123456 9.999999\n"},
    {"TouchingColumns",
     "#opt\n"
     "0 1\n"
     "He 0 1000000 0\n"
     "^^^^^^^^^^^^^^ QL503 a coordinate of this atom is so large that it would touch the column "
     "before it, and the atom would be lost\n"
     "He 0 999999.999999 0\n"
     "^^^^^^^^^^^^^^^^^^^^ QL602 atom 2 is only 1e-06 from atom 1\n"
     "He 0 -99999.999999 0\n"
     "He 0 -100000 0\n"
     "^^^^^^^^^^^^^^ QL503 a coordinate of this atom is so large that it would touch the column "
     "before it, and the atom would be lost\n"
     "^^^^^^^^^^^^^^ QL602 atom 4 is only 1e-06 from atom 3\n"
     "He 5000000 0 0\n"},
};

class WritingRules : public MarkedRows {};

TEST_P(WritingRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, WritingRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
