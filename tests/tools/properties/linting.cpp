#include "tools/properties/linting.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "kelp/input/quill/lossless/wording.hpp"
#include "lint/line_repair.hpp"
#include "lint/lint.hpp"
#include "lint/mending.hpp"
#include "lint/wording.hpp"
#include "properties/violation.hpp"
#include "properties/warning_text.hpp"

namespace kelp::input::quill::lint {

namespace {

using lossless::ReadText;

bool lies_in(const Range& range, std::string_view text) {
  return range.offset <= text.size() && range.length <= text.size() - range.offset;
}

void check_place(const Range& range, const ReadText& read) {
  require(lies_in(range, read.text), "a place lies in the text", read.text);
  const TextPlace place = place_of(range.offset, read.lines);
  if (read.lines.empty()) return;
  require(1 <= place.line && place.line <= read.lines.size(), "a line is one of the text",
          read.text);
  const LineRecord& line = read.lines[place.line - 1];
  require(line.offset + place.column - 1 == range.offset, "a column counts bytes", read.text);
  require(place.column <= line.length + line.terminator_length + 1, "a column lies in its line",
          read.text);
}

void check_mend(const Mend& mend, const ReadText& read) {
  require(!mend.edits.empty(), "a mend changes something", read.text);
  std::size_t end = 0;
  for (const ByteEdit& edit : mend.edits) {
    require(lies_in(edit.range, read.text), "an edit lies in the text", read.text);
    require(edit.range.offset >= end, "edits are in order and do not overlap", read.text);
    end = edit.range.end();
  }
}

void check_findings(const Findings& findings, const ReadText& read) {
  std::size_t last = 0;
  for (const Finding& finding : findings) {
    require(find_rule(finding.code) != nullptr, "a finding has a rule", read.text);
    require(finding.range.offset >= last, "findings are in the order of their places", read.text);
    last = finding.range.offset;
    check_place(finding.range, read);
    for (const RelatedPlace& place : finding.related) check_place(place.range, read);
    if (finding.mend) check_mend(*finding.mend, read);
    const FindingWords words = words_of(finding);
    require(!words.message.empty() && !words.advice.empty(), "a finding has words", read.text);
  }
}

/// The rule that repeats a message of the reader, by how the message begins.
std::string_view code_of_message(const std::string& message) {
  const std::map<std::string, std::string_view> codes = {
      {"empty QUILL header command", "QL203"},
      {"missing ')' in QUILL header command", "QL201"},
      {"ignored trailing text after QUILL header command", "QL202"},
      {"QUILL header command has no name", "QL204"},
      {"XYZ reference has no file path", "QL114"},
      {"XYZTRAJ reference has no file path", "QL114"},
      {"ignored unrecognized QUILL post-processing line", "QL301"},
  };
  const auto code = codes.find(message);
  return code == codes.end() ? "QL112" : code->second;
}

using CodeOnLine = std::pair<std::size_t, std::string_view>;

std::multiset<CodeOnLine> codes_of_reader(const ReadText& read) {
  std::multiset<CodeOnLine> codes;
  for (const std::string& warning : read.result.warnings) {
    const SplitWarning split = split_warning(warning);
    if (split.is_of_a_line) codes.emplace(split.line, code_of_message(split.message));
  }
  return codes;
}

/// Rules that repeat the reader say what it says, no more and no less.
void check_against_reader(const Findings& all, const ReadText& read) {
  const std::set<std::string_view> codes = {"QL112", "QL114", "QL201", "QL202",
                                            "QL203", "QL204", "QL301"};
  std::multiset<CodeOnLine> found;
  for (const Finding& finding : all) {
    if (codes.count(finding.code) != 0)
      found.emplace(place_of(finding.range.offset, read.lines).line, finding.code);
  }
  require(found == codes_of_reader(read), "every diagnostic of the reader has its finding",
          read.text);
}

/// What the reader made of a line, in words.
std::string meaning_of(const LineRecord& line, const ReadText& read) {
  return lossless::describe({line.role, line.index}, read.result.input) + " " +
         std::string(lossless::content_of(line, read.text));
}

/// The first line of which a mend may change the lines after it, or the number of lines.
std::size_t first_line_with_reach(const Findings& findings, const ReadText& read) {
  for (const Finding& finding : findings) {
    if (finding.mend && finding.mend->is_safe && find_rule(finding.code)->reach == MendReach::Rest)
      return place_of(finding.range.offset, read.lines).line - 1;
  }
  return read.lines.size();
}

void check_other_lines(const Findings& findings, const ReadText& read, const std::string& text) {
  std::set<std::size_t> lines;
  for (const Finding& finding : findings)
    lines.insert(place_of(finding.range.offset, read.lines).line - 1);
  const ReadText after = lossless::read_text(text);
  const std::size_t end = first_line_with_reach(findings, read);
  require(after.lines.size() >= end, "a mend takes no line away", read.text);
  for (std::size_t i = 0; i < end; ++i) {
    require(
        lines.count(i) != 0 || meaning_of(read.lines[i], read) == meaning_of(after.lines[i], after),
        "a line without a finding stays what it is", read.text);
  }
}

void check_mending(const Findings& findings, const ReadText& read) {
  std::size_t count = 0;
  const std::vector<ByteEdit> edits = safe_edits(findings, count);
  check_other_lines(findings, read, with_edits(read.text, edits));
  const auto every = [](const Finding&) { return true; };
  const std::string once = mend(read, Options(), every).read.text;
  require((once == read.text) == edits.empty(), "safe mends change the text", read.text);
  require(mend(lossless::read_text(once), Options(), every).read.text == once,
          "mending twice is mending once", read.text);
}

}  // namespace

void check_linting(std::string_view text) {
  const ReadText read = lossless::read_text(std::string(text));
  const Findings all = find_unexplained(read, Options());
  check_findings(all, read);
  check_against_reader(all, read);
  const Findings findings = find_all(read, Options());
  check_findings(findings, read);
  require(all.empty() == findings.empty(), "an explanation is a finding", read.text);
  check_mending(findings, read);
}

}  // namespace kelp::input::quill::lint
