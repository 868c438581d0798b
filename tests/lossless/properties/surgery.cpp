#include "lossless/properties/surgery.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <optional>
#include <set>

#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/quill.hpp"
#include "lossless/properties/made_edits.hpp"
#include "properties/made_document.hpp"
#include "properties/violation.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill::lossless {

namespace {

QuillInput made_by_an_editor(const std::string& text, const std::vector<Edit>& edits) {
  InputEditor editor(parse_string(text).input);
  for (const Edit& edit : edits) edit.apply(editor);
  return editor.document();
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

using Number = std::optional<std::size_t> LineChange::*;

/// The lines that no change names.
std::vector<std::string> rest_of(std::vector<std::string> lines, const EditOutcome& edit,
                                 Number number) {
  std::set<std::size_t> reported;
  for (const LineChange& change : edit.changes) {
    if (change.*number)
      require(reported.insert(*(change.*number)).second, "no line is reported twice", edit.text);
  }
  for (auto place = reported.rbegin(); place != reported.rend(); ++place)
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*place) - 1);
  return lines;
}

std::string without_line_end(std::string line) {
  if (!line.empty() && line.back() == '\n') {
    line.pop_back();
    if (!line.empty() && line.back() == '\r') line.pop_back();
  }
  return line;
}

/// A last line without a line end may get one when it is not the last any more, and the other way
/// round.
void check_other_lines(const std::string& text, const EditOutcome& edit) {
  const std::vector<std::string> old_lines = lines_with_ends(text);
  std::vector<std::string> old_rest = rest_of(old_lines, edit, &LineChange::old_line);
  std::vector<std::string> new_rest =
      rest_of(lines_with_ends(edit.text), edit, &LineChange::new_line);
  require(old_rest.size() == new_rest.size(), "lines that are not reported stay", text);
  if (old_rest.empty()) return;
  const bool ended_without = old_lines.back().back() != '\n';
  if (ended_without && old_rest.back() != new_rest.back()) {
    const std::string& longer = std::max(old_rest.back(), new_rest.back());
    const std::string& shorter = std::min(old_rest.back(), new_rest.back());
    require(longer == shorter + "\n" || longer == shorter + "\r\n",
            "a last line changes in nothing but its end", text);
    old_rest.back() = new_rest.back();
  }
  require(old_rest == new_rest, "lines that are not reported stay as they are", text);
}

void check_reported_lines(const std::string& text, const EditOutcome& edit) {
  const std::vector<std::string> old_lines = lines_with_ends(text);
  const std::vector<std::string> new_lines = lines_with_ends(edit.text);
  for (const LineChange& change : edit.changes) {
    if (!change.old_line || !change.new_line) continue;
    require(without_line_end(old_lines.at(*change.old_line - 1)) !=
                without_line_end(new_lines.at(*change.new_line - 1)),
            "a line that is reported differs", text);
  }
}

std::size_t count(const std::string& text, std::string_view what) {
  std::size_t n = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
  return n;
}

void check_line_ends(const std::string& text, const EditOutcome& edit) {
  const bool has_crlf_only = count(text, "\n") > 0 && count(text, "\r\n") == count(text, "\n");
  require(!has_crlf_only || count(edit.text, "\r\n") == count(edit.text, "\n"),
          "line ends of one kind stay of that kind", text);
}

/// The way out that an explanation names is one: after another post-processing line, the line is
/// read as such a line.
void check_advice(const EditOutcome& edit) {
  if (!edit.proof.line()) return;
  const std::size_t line = *edit.proof.line();
  std::vector<std::string> lines = lines_with_ends(edit.text);
  require(1 <= line && line <= lines.size(), "the line of an explanation exists", edit.text);
  if (!edit.proof.explanation->is_avoidable) return;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line) - 1, "B 1 2\n");
  const std::string text = std::accumulate(lines.begin(), lines.end(), std::string());
  require(parse_lines(text).lines.at(line).role == LineRole::PostCommand,
          "the way out that an explanation names is one", edit.text);
}

/// What the canonical text can say is not refused, but where a line that the reader used to drop is
/// in the way: the canonical text has no such lines.
void check_need_of_refusal(const EditOutcome& edit) {
  const std::string canonical = quote(edit.wanted).document.to_string();
  const bool is_canonical_text_good =
      without_source_lines(parse_string(canonical).input) == without_source_lines(edit.wanted);
  const auto& explanation = edit.proof.explanation;
  const bool is_in_the_way = edit.quoting_problems.empty() && explanation &&
                             explanation->kind == Explanation::Kind::OtherPart &&
                             !explanation->wanted;
  require(!is_canonical_text_good || is_in_the_way, "what can be said is not refused", edit.text);
}

void check_outcome(const std::string& text, const EditOutcome& edit) {
  const bool reads_back =
      without_source_lines(parse_string(edit.text).input) == without_source_lines(edit.wanted);
  require(edit.holds() == reads_back, "an edit holds when it reads back", text);
  require(edit.refusal().empty() == reads_back, "a refusal says why", text);
  if (reads_back) {
    require(edit.quoting_problems.empty(), "what reads back can be written", text);
    check_line_ends(text, edit);
    return;
  }
  check_need_of_refusal(edit);
  if (edit.quoting_problems.empty()) check_advice(edit);
}

}  // namespace

QuillInput without_source_lines(QuillInput input) {
  for (PostCommand& command : input.post_commands) {
    if (command.kind != PostCommandKind::Raw) command.raw_text.clear();
  }
  return input;
}

EditOutcome checked_edit(const std::string& text, const std::vector<Edit>& edits) {
  EditOutcome edit = edit_text(text, edits);
  require(edit.wanted == made_by_an_editor(text, edits), "an edit does what the editor does", text);
  check_outcome(text, edit);
  check_other_lines(text, edit);
  check_reported_lines(text, edit);
  if (without_source_lines(edit.wanted) == without_source_lines(parse_string(text).input))
    require(edit.text == text && edit.changes.empty(), "an edit of nothing changes nothing", text);
  return edit;
}

void check_proofs(std::string_view text, const QuillInput& document) {
  require(prove(text, parse_string(text).input).holds(), "a text proves its own document", text);
  const std::string written = document.to_string();
  const Proof proof = prove(written, document);
  const bool reads_back = without_source_lines(proof.found.input) == without_source_lines(document);
  require(proof.holds() == reads_back, "a proof holds when the text reads back", written);
  require(proof.explanation.has_value() != reads_back, "an explanation says why not", written);
}

void check_surgery(std::string_view bytes) {
  constexpr std::string_view separator = "\n%%\n";
  const std::size_t end = bytes.find(separator);
  const std::string text(bytes.substr(0, end));
  ByteSource source(end == std::string_view::npos ? std::string_view()
                                                  : bytes.substr(end + separator.size()));
  const EditOutcome edit = checked_edit(text, made_edits(source));
  check_proofs(text, edit.wanted);
}

}  // namespace kelp::input::quill::lossless
