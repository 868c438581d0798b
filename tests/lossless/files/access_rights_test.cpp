#include "files/access_rights.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelp::input::quill::lossless {
namespace {

struct Row {
  std::string_view name;
  mode_t mode;
  bool keeps_owner;
  bool keeps_group;
  mode_t narrowed;
};

class NarrowedMode : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NothingLost", 06754, true, true, 06754},
    {"GroupLostForAFileOfTheGroup", 0660, true, false, 0600},
    {"GroupLostForAFileOfEverybody", 0644, true, false, 0644},
    {"GroupLostWhereOthersMayMore", 0606, true, false, 0600},
    {"GroupLostWhereGroupMayMore", 0664, true, false, 0644},
    {"GroupLostWhereOthersMayRunIt", 0701, true, false, 0700},
    {"GroupLostAndItsProgramBit", 02775, true, false, 0755},
    {"GroupLostKeepsTheOwnersProgramBit", 04755, true, false, 04755},
    {"OwnerLost", 0640, false, true, 0640},
    {"OwnerLostWhereTheRestMayMore", 0466, false, true, 0444},
    {"OwnerLostAndItsProgramBit", 04755, false, true, 0755},
    {"OwnerLostKeepsTheGroupsProgramBit", 02755, false, true, 02755},
    {"BothLost", 06676, false, false, 0666},
    {"StickyBitStays", 01644, false, false, 01644},
};

TEST_P(NarrowedMode, LetsNobodyDoMore) {
  EXPECT_EQ(narrowed_mode(GetParam().mode, GetParam().keeps_owner, GetParam().keeps_group),
            GetParam().narrowed);
}

INSTANTIATE_TEST_SUITE_P(Table, NarrowedMode, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::lossless
