#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "edit_support/line_account.hpp"
#include "edit_support/surgical_edit.hpp"
#include "edit_support/value_spelling.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "tools/edit_support/random_edits.hpp"

// What must hold for any text and any edits, shown on thousands of them. The expectations are
// drawn up by means of their own: the editor alone says what is meant, plain cutting at "\n" what a
// line is, and the equality of the tests what is equal.

namespace kelp::input::quill::edit_support {

namespace {

struct Applied {
  InputEditor& editor;

  void operator()(const SetFlag& edit) const { editor.set_flag(edit.name); }
  void operator()(const SetAssignment& edit) const { editor.set_assignment(edit.name, edit.value); }
  void operator()(const SetTask& edit) const { editor.set_task(edit.name, edit.parameters); }
  void operator()(const SetParameter& edit) const {
    editor.set_parameter(edit.command, edit.parameter, edit.value, edit.occurrence);
  }
  void operator()(const RemoveParameter& edit) const {
    editor.remove_parameter(edit.command, edit.parameter, edit.occurrence);
  }
  void operator()(const AddCommand& edit) const { editor.add_command(edit.command); }
  void operator()(const RemoveCommand& edit) const {
    editor.remove_command(edit.name, edit.occurrence);
  }
  void operator()(const SetChargeAndMultiplicity& edit) const {
    const GeometryBlock& geometry = editor.document().geometry;
    editor.set_charge_and_multiplicity(
        edit.charge ? *edit.charge : geometry.charge,
        edit.multiplicity ? *edit.multiplicity : geometry.multiplicity);
  }
  void operator()(const ClearChargeAndMultiplicity&) const {
    editor.clear_charge_and_multiplicity();
  }
  void operator()(const SetAtoms& edit) const { editor.set_geometry(edit.atoms); }
  void operator()(const SetXyzFiles& edit) const { editor.set_xyz_files(edit.files); }
  void operator()(const SetTrajectory& edit) const { editor.set_xyz_trajectory(edit.path); }
  void operator()(const AddPostCommand& edit) const { editor.add_post_command(edit.command); }
};

QuillInput meant_by(const std::string& text, const std::vector<Edit>& edits) {
  InputEditor editor(parse_string(text).input);
  for (const Edit& edit : edits) std::visit(Applied{editor}, edit);
  return editor.document();
}

/// The document without what the reader alone fills in.
QuillInput without_source_lines(QuillInput input) {
  for (PostCommand& command : input.post_commands) {
    if (command.kind != PostCommandKind::Raw) command.raw_text.clear();
  }
  return input;
}

std::vector<std::string> lines_with_ends(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    std::size_t end = text.find('\n', start);
    end = end == std::string::npos ? text.size() : end + 1;
    lines.push_back(text.substr(start, end - start));
    start = end;
  }
  return lines;
}

std::vector<std::string> without(std::vector<std::string> lines,
                                 const std::set<std::size_t>& numbers) {
  for (auto number = numbers.rbegin(); number != numbers.rend(); ++number)
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*number) - 1);
  return lines;
}

std::set<std::size_t> reported(const std::vector<LineChange>& changes,
                               std::optional<std::size_t> LineChange::*number) {
  std::set<std::size_t> numbers;
  for (const LineChange& change : changes) {
    if (change.*number && !numbers.insert(*(change.*number)).second)
      ADD_FAILURE() << "line " << *(change.*number) << " is reported twice";
  }
  return numbers;
}

std::string without_line_end(std::string line) {
  if (!line.empty() && line.back() == '\n') {
    line.pop_back();
    if (!line.empty() && line.back() == '\r') line.pop_back();
  }
  return line;
}

/// Expects the lines that no change names to be the same, in order and byte for byte. A last line
/// without a line end may get one when it is not the last any more, and the other way round.
void expect_other_lines_unchanged(const std::string& text, const SurgicalEdit& edit) {
  const std::vector<std::string> old_lines = lines_with_ends(text);
  const std::vector<std::string> new_lines = lines_with_ends(edit.text);
  std::vector<std::string> old_rest =
      without(old_lines, reported(edit.changes, &LineChange::old_line));
  std::vector<std::string> new_rest =
      without(new_lines, reported(edit.changes, &LineChange::new_line));
  ASSERT_EQ(old_rest.size(), new_rest.size());
  if (old_rest.empty()) return;
  const bool ended_without = !old_lines.empty() && old_lines.back().back() != '\n';
  if (ended_without && old_rest.back() != new_rest.back()) {
    const std::string& longer = std::max(old_rest.back(), new_rest.back());
    const std::string& shorter = std::min(old_rest.back(), new_rest.back());
    const std::string added = longer.substr(shorter.size());
    EXPECT_TRUE(added == "\n" || added == "\r\n") << testing::PrintToString(added);
    old_rest.back() = shorter;
    new_rest.back() = shorter;
    EXPECT_EQ(longer.compare(0, shorter.size(), shorter), 0);
  }
  EXPECT_EQ(old_rest, new_rest);
}

void expect_reported_lines_to_differ(const std::string& text, const SurgicalEdit& edit) {
  const std::vector<std::string> old_lines = lines_with_ends(text);
  const std::vector<std::string> new_lines = lines_with_ends(edit.text);
  for (const LineChange& change : edit.changes) {
    if (change.old_line && change.new_line) {
      EXPECT_NE(without_line_end(old_lines.at(*change.old_line - 1)),
                without_line_end(new_lines.at(*change.new_line - 1)));
    }
  }
}

/// The line ends of a text that has only one kind of them stay of that kind.
void expect_line_ends_kept(const std::string& text, const std::string& edited) {
  const auto count = [](const std::string& in, std::string_view what) {
    std::size_t n = 0;
    for (std::size_t at = in.find(what); at != std::string::npos; at = in.find(what, at + 1)) ++n;
    return n;
  };
  const std::size_t crlf = count(text, "\r\n");
  const std::size_t lf = count(text, "\n");
  if (lf > 0 && crlf == lf) {
    EXPECT_EQ(count(edited, "\r\n"), count(edited, "\n"));
  }
}

/// The way out that an explanation names is one: behind another post-processing line, the line is
/// read as such a line.
void expect_advice_to_help(const SurgicalEdit& edit) {
  const std::string& explanation = edit.proof.explanation;
  if (explanation.find("; another post-processing line in front of it avoids that") ==
      std::string::npos) {
    return;
  }
  const std::size_t line = edit.proof.line.value();
  std::vector<std::string> lines = lines_with_ends(edit.text);
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line) - 1, "B 1 2\n");
  const std::string text = std::accumulate(lines.begin(), lines.end(), std::string());
  EXPECT_EQ(account_for_lines(text, parse_string(text)).at(line).role, LineRole::PostCommand);
}

/// What the canonical text can say is not refused, but where a line that the reader used to drop is
/// in the way: the canonical text has no such lines.
void expect_refusal_to_be_needed(const SurgicalEdit& edit) {
  const std::string canonical = spell(edit.meant).document.to_string();
  const bool is_canonical_text_good =
      without_source_lines(parse_string(canonical).input) == without_source_lines(edit.meant);
  if (is_canonical_text_good) {
    EXPECT_NE(edit.refusal().find(", which is not meant"), std::string::npos);
  }
}

struct Tally {
  int proved = 0;
  int refused_for_spelling = 0;
  int refused_with_line = 0;
  int refused_otherwise = 0;
  int unchanged = 0;
};

void check_seed(std::uint32_t seed, Tally& tally) {
  RandomEdits random(seed);
  const std::string text = random.text();
  const std::vector<Edit> edits = random.edits();
  const QuillInput meant = meant_by(text, edits);

  const SurgicalEdit edit = edit_text(text, edits);
  SCOPED_TRACE("seed " + std::to_string(seed) + ", text " + testing::PrintToString(text) +
               ", edited " + testing::PrintToString(edit.text) + ", refusal " + edit.refusal());
  EXPECT_EQ(edit.meant, meant);

  const QuillInput found = parse_string(edit.text).input;
  const bool reads_back = without_source_lines(found) == without_source_lines(meant);
  EXPECT_EQ(edit.holds(), reads_back);
  EXPECT_EQ(edit.refusal().empty(), reads_back);
  if (!reads_back) expect_refusal_to_be_needed(edit);
  if (reads_back) {
    ++tally.proved;
    EXPECT_TRUE(edit.spelling_reasons.empty());
    expect_line_ends_kept(text, edit.text);
  } else if (!edit.spelling_reasons.empty()) {
    ++tally.refused_for_spelling;
  } else if (edit.proof.line) {
    ++tally.refused_with_line;
    EXPECT_LE(*edit.proof.line, lines_with_ends(edit.text).size());
    expect_advice_to_help(edit);
  } else {
    ++tally.refused_otherwise;
  }
  expect_other_lines_unchanged(text, edit);
  expect_reported_lines_to_differ(text, edit);
  if (without_source_lines(meant) == without_source_lines(parse_string(text).input)) {
    ++tally.unchanged;
    EXPECT_EQ(edit.text, text);
    EXPECT_TRUE(edit.changes.empty());
  }
}

}  // namespace

TEST(SurgicalEditProperty, ThousandsOfEditsChangeOnlyTheLinesTheyReportAndReadBackOrAreRefused) {
  constexpr int seeds = 4000;
  Tally tally;
  for (std::uint32_t seed = 0; seed < seeds && !testing::Test::HasFailure(); ++seed)
    check_seed(seed, tally);
  // No outcome is so rare that its share of the properties goes untested.
  EXPECT_GT(tally.proved, seeds / 2);
  EXPECT_GT(tally.refused_for_spelling, seeds / 10);
  EXPECT_GT(tally.refused_with_line, seeds / 10);
  EXPECT_GT(tally.refused_otherwise, seeds / 100);
  EXPECT_GT(tally.unchanged, seeds / 20);
}

}  // namespace kelp::input::quill::edit_support
