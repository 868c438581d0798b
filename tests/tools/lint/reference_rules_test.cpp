#include <gtest/gtest.h>

#include "tools/lint/marked_rows.hpp"
#include "tools/lint/page_text.hpp"
namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"ExistingFiles",
     "#opt\n"
     "0 1\n"
     "XYZ water.xyz\n"
     "XYZ other.xyz\n"
     "C 9\n"},
    {"AnAtomNumberBeyondThoseOfTheFile",
     "#opt\n"
     "0 1\n"
     "XYZ water.xyz\n"
     "C 2\n"
     "C 3\n"
     "  ^ QL305 the atom '3' does not exist: the input has 2 atoms\n"},
    {"AMissingFile",
     "#opt\n"
     "0 1\n"
     "XYZ water.xyz\n"
     "XYZ no_such_file.xyz\n"
     "    ^^^^^^^^^^^^^^^^ QL402 the file 'no_such_file.xyz' does not exist\n"},
    {"AFolder",
     "#opt\n"
     "0 1\n"
     "XYZ structures\n"
     "    ^^^^^^^^^^ QL403 the file 'structures' cannot be read: is a folder\n"},
    {"AFileWithoutAFrame",
     "#opt\n"
     "XYZTRAJ   notes.txt  \n"
     "          ^^^^^^^^^ QL404 the file 'notes.txt' does not begin with a frame of the XYZ "
     "format\n"
     "C 3\n"},
    {"QuotedPaths",
     "#opt\n"
     "0 1\n"
     "XYZ \"my water.xyz\"\n"
     "    ^^^^^^^^^^^^^^ QL401 the quotes are part of the path \"my water.xyz\"\n"
     "XYZ 'other.xyz'\n"
     "    ^^^^^^^^^^^ QL401 the quotes are part of the path 'other.xyz'\n"
     "XYZ \"a' \n"
     "POST \"charges.dat\"\n"
     "     ^^^^^^^^^^^^^ QL401 the quotes are part of the path \"charges.dat\"\n"},
    {"AnotherReferenceAfterATrajectory",
     "#irc\n"
     "XYZTRAJ path.xyz\n"
     "XYZTRAJ other.xyz\n"
     "^^^^^^^^^^^^^^^^^ QL405 an input has one trajectory, so the second XYZTRAJ line is kept as "
     "raw text\n"
     "xyz third.xyz\n"
     "^^^^^^^^^^^^^ QL405 an input has one trajectory, so the second XYZ line is kept as raw "
     "text\n"},
    {"AnotherReferenceAfterATrajectoryWithoutAPath",
     "#irc\n"
     "XYZTRAJ\n"
     "^^^^^^^ QL114 the XYZTRAJ reference has no file path\n"
     "XYZ other.xyz\n"
     "^^^^^^^^^^^^^ QL405 an input has one trajectory, so the second XYZ line is kept as raw "
     "text\n"},
};

class ReferenceRules : public MarkedRows {};

TEST_P(ReferenceRules, FindExactlyThis) { expect_marks(options_of_pages()); }

INSTANTIATE_TEST_SUITE_P(Table, ReferenceRules, testing::ValuesIn(rows), name_of_row);

}  // namespace

}  // namespace kelp::input::quill::lint
