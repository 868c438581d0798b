#include "kelp/input/quill/lossless/proof.hpp"

#include <utility>
#include <vector>

#include "editing/expected_lines.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// Walks over the lines of a text and, at the same time, over the parts that are wanted, up to the
/// first line that is not read as its part.
class Walk {
 public:
  Walk(std::string_view text, const QuillInput& wanted, const Comparison& comparison)
      : text_(text), wanted_(wanted), parts_(list_parts(wanted)), comparison_(comparison) {
    // Differences are in the order of the lines, so the walk reaches the first of them first.
    const std::vector<Difference>& all = comparison.differences;
    while (first_difference_ < all.size() && all[first_difference_].part.role == LineRole::Blank)
      ++first_difference_;
  }

  Explanation explain(const std::vector<LineRecord>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const LineRecord& line = lines[i];
      if (line.role == LineRole::Blank || was_written_for_nothing(line)) continue;
      if (!is_next_part(line)) return explain_other_part(line, i + 1);
      if (has_first_difference(line)) return explain_other_content(line, i + 1);
      ++next_;
    }
    return explain_end();
  }

 private:
  bool has_next() const { return next_ != parts_.size(); }

  bool may_be_next(const LineRecord& line) const {
    return has_next() && may_be_line_of(content_of(line, text_), parts_[next_], wanted_);
  }

  /// Lines that leave nothing in the document may have been in the old text already.
  bool was_written_for_nothing(const LineRecord& line) const {
    const bool left_nothing =
        line.role == LineRole::Dropped || (line.role == LineRole::XyzReference && !line.index);
    return left_nothing && !may_be_next(line);
  }

  bool is_next_part(const LineRecord& line) const {
    return has_next() && parts_[next_] == Part{line.role, line.index};
  }

  Explanation explain_other_part(const LineRecord& line, std::size_t number) const {
    Explanation explanation;
    explanation.kind = Explanation::Kind::OtherPart;
    explanation.line = number;
    explanation.found = {line.role, line.index};
    if (!may_be_next(line)) return explanation;
    explanation.wanted = parts_[next_];
    // The first post-processing line ends the sections before it, unless it looks like one of their
    // lines.
    explanation.is_avoidable = parts_[next_].role == LineRole::PostCommand &&
                               line.role != LineRole::PostCommand && line.role != LineRole::Dropped;
    return explanation;
  }

  bool has_first_difference(const LineRecord& line) const {
    return first_difference_ < comparison_.differences.size() &&
           comparison_.differences[first_difference_].part == Part{line.role, line.index};
  }

  Explanation explain_other_content(const LineRecord& line, std::size_t number) const {
    Explanation explanation;
    explanation.kind = Explanation::Kind::OtherContent;
    explanation.line = number;
    explanation.found = {line.role, line.index};
    explanation.difference = first_difference_;
    return explanation;
  }

  Explanation explain_end() const {
    Explanation explanation;
    if (has_next()) {
      explanation.kind = Explanation::Kind::MissingLine;
      explanation.wanted = parts_[next_];
    } else {
      explanation.difference = 0;
    }
    return explanation;
  }

  std::string_view text_;
  const QuillInput& wanted_;
  std::vector<Part> parts_;
  std::size_t next_ = 0;
  const Comparison& comparison_;
  std::size_t first_difference_ = 0;  // that belongs to a line
};

}  // namespace

Proof prove(std::string_view text, const QuillInput& wanted, double max_change) {
  Proof proof;
  proof.found = parse_string(text);
  proof.comparison = compare(wanted, proof.found.input, max_change);
  if (proof.holds()) return proof;
  // Knowing where the lines are takes memory, and nearly every proof holds without that.
  proof.found = ParseResult();
  ParsedLines parsed = parse_lines(text);
  proof.found = std::move(parsed.result);
  proof.explanation = Walk(text, wanted, proof.comparison).explain(parsed.lines);
  return proof;
}

}  // namespace kelp::input::quill::lossless
