#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string hint = "quill-inp: note: see 'quill-inp explain --help'\n";

class Explain : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"RefusesAnUnknownCode",
     {"explain", "QL999"},
     ended(2, "", "quill-inp: error: there is no code 'QL999'\n" + hint)},
    {"RefusesAnUnknownCodeBesideAKnownOne",
     {"explain", "QL104", "QL1"},
     ended(2, "", "quill-inp: error: there is no code 'QL1'\n" + hint)},
};

TEST_P(Explain, EndsAsItShould) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Explain, testing::ValuesIn(calls),
                         [](const auto& call) { return std::string(call.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
