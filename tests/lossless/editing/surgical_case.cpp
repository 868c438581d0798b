#include "lossless/editing/surgical_case.hpp"

#include <ostream>
#include <utility>

namespace kelp::input::quill::lossless {

namespace {

std::string shown(const LineChange& change) {
  if (!change.old_line) return '+' + std::to_string(change.new_line.value());
  if (!change.new_line) return '-' + std::to_string(*change.old_line);
  if (change.old_line == change.new_line) return std::to_string(*change.old_line);
  return std::to_string(*change.old_line) + '>' + std::to_string(*change.new_line);
}

std::string shown(const std::vector<LineChange>& changes) {
  std::string out;
  for (const LineChange& change : changes) {
    if (!out.empty()) out += ' ';
    out += shown(change);
  }
  return out;
}

}  // namespace

void PrintTo(const SurgicalCase& row, std::ostream* out) {
  *out << testing::PrintToString(row.before);
}

void expect_surgery(const SurgicalCase& row) {
  const EditOutcome edit = edit_text(row.before, row.edits);
  EXPECT_EQ(edit.text, row.after);
  EXPECT_EQ(shown(edit.changes), row.changes);
  EXPECT_EQ(edit.refusal(), row.refusal);
  EXPECT_EQ(edit.holds(), row.refusal.empty());
  EXPECT_EQ(prove(row.after, edit.wanted).holds(), row.refusal.empty());
}

std::string row_name(const testing::TestParamInfo<SurgicalCase>& info) {
  return std::string(info.param.name);
}

PostCommand raw_line(std::string text) {
  return PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, {}, std::move(text));
}

}  // namespace kelp::input::quill::lossless
