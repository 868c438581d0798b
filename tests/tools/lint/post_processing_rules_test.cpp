#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"DroppedLines",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "B 1 x\n"
     "    ^ QL301 the line is dropped: 'x' is not a number that 'B' takes\n"
     "c 1.5\n"
     "  ^^^ QL301 the line is dropped: '1.5' is not a number that 'c' takes\n"
     "S 1 2 1,43 10\n"
     "      ^^^^ QL301 the line is dropped: '1,43' is not a number that 'S' takes\n"
     "S 1 2 1.4 10.0\n"
     "          ^^^^ QL301 the line is dropped: '10.0' is not a number that 'S' takes\n"
     "B 1 −2\n"
     "    ^^^^ QL301 the line is dropped: '−2' is not a number that 'B' takes\n"},
    {"WrongCountsOfWords",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "C 1\n"
     "C 1 2\n"
     "^^^^^ QL302 'C' takes one atom number, here two; the line is kept as raw text\n"
     "b 1\n"
     "^^^ QL302 'B' takes two atom numbers, here one; the line is kept as raw text\n"
     "A 1 2\n"
     "^^^^^ QL302 'A' takes three atom numbers, here two; the line is kept as raw text\n"
     "D 1 2 3\n"
     "^^^^^^^ QL302 'D' takes four atom numbers, here three; the line is kept as raw text\n"
     "S 1 2 1.5\n"
     "^^^^^^^^^ QL302 'S' takes two to four atom numbers, a value and a number of steps, here "
     "three; the line is kept as raw text\n"
     "POST\n"
     "^^^^ QL302 'POST' takes a path, here none; the line is kept as raw text\n"
     "C\n"
     "^ QL302 'C' takes one atom number, here none; the line is kept as raw text\n"
     "S\n"
     "^ QL302 'S' takes two to four atom numbers, a value and a number of steps, here none; the "
     "line is kept as raw text\n"},
    {"ProseIsFine",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "A note that begins with a keyword\n"
     "POST results.dat\n"
     "c is carbon\n"},
    {"AtomNumbersBelowOne",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "C 0\n"
     "  ^ QL303 the atom number '0' is below 1\n"
     "B -1 2\n"
     "  ^^ QL303 the atom number '-1' is below 1\n"
     "S 0 2 1.5 10\n"
     "  ^ QL303 the atom number '0' is below 1\n"},
    {"RepeatedAtomNumbers",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "B 1 01\n"
     "    ^^ QL304 the atom number '01' is on this line twice\n"
     "D 1 2 1 2\n"
     "      ^ QL304 the atom number '1' is on this line twice\n"
     "        ^ QL304 the atom number '2' is on this line twice\n"
     "S 2 2 1.5 10\n"
     "    ^ QL304 the atom number '2' is on this line twice\n"},
    {"AtomNumbersThatAreTooLarge",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "C 2\n"
     "C 3\n"
     "  ^ QL305 the atom '3' does not exist: the input has 2 atoms\n"
     "B 1 2147483647\n"
     "    ^^^^^^^^^^ QL305 the atom '2147483647' does not exist: the input has 2 atoms\n"
     "S 1 4 1.5 10\n"
     "    ^ QL305 the atom '4' does not exist: the input has 2 atoms\n"},
    {"AtomNumbersWithoutAtomsAreFine",
     "#opt\n"
     "0 1\n"
     "XYZ water.xyz\n"
     "C 9\n"},
    {"ScansWithoutSteps",
     "#scan\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "S 1 2 1.5 0\n"
     "          ^ QL306 the number of steps is '0', but a scan needs at least one\n"
     "S 1 2 1.5 -5\n"
     "          ^^ QL306 the number of steps is '-5', but a scan needs at least one\n"
     "S 1 2 1.5 1\n"},
    {"ScanValuesThatAreNotFinite",
     "#scan\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"
     "O 0 0.757 2\n"
     "S 1 2 nan 10\n"
     "      ^^^ QL307 the scan value 'nan' is not a finite number\n"
     "S 1 2 3 -Infinity 10\n"
     "        ^^^^^^^^^ QL307 the scan value '-Infinity' is not a finite number\n"
     "S 1 2 3 1e308 10\n"},
};

class PostProcessingRules : public MarkedRows {};

TEST_P(PostProcessingRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, PostProcessingRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
