// Not a test: leaves in the report of a program (--gtest_output) how many statements its tests have
// checked, where scripts/properties.sh finds the number.

#include <gtest/gtest.h>

#include <string>

#include "properties/violation.hpp"

namespace kelp::input::quill {
namespace {

class Report : public testing::Environment {
 public:
  void TearDown() override {
    testing::Test::RecordProperty("statements", std::to_string(statements_checked()));
  }
};

[[maybe_unused]] const auto* const report = testing::AddGlobalTestEnvironment(new Report);

}  // namespace
}  // namespace kelp::input::quill
