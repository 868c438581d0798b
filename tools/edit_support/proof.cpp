#include "edit_support/proof.hpp"

#include <utility>
#include <vector>

#include "edit_support/line_account.hpp"
#include "edit_support/meant_parts.hpp"
#include "edit_support/part_words.hpp"

namespace kelp::input::quill::edit_support {

namespace {

/// Walks over the lines of a text and the parts that were meant, side by side, up to the first line
/// that is not read as its part.
class Explanation {
 public:
  Explanation(std::string_view text, const QuillInput& meant, Proof& proof)
      : text_(text), meant_(meant), parts_(list_parts(meant)), proof_(proof) {
    // Differences stand in the order of the lines, so the walk meets the first of them first.
    for (const DocumentDifference& difference : proof.comparison.differences) {
      if (first_difference_ == nullptr && difference.role != LineRole::Blank)
        first_difference_ = &difference;
    }
  }

  void find() {
    for (const AccountedLine& line : account_for_lines(text_, proof_.found)) {
      if (line.role == LineRole::Blank || is_meant_for_nothing(line)) continue;
      if (!matches_next_part(line)) {
        explain_other_role(line);
        return;
      }
      if (explain_other_content(line)) return;
      ++next_;
    }
    explain_missing_part();
  }

 private:
  bool has_next() const { return next_ != parts_.size(); }

  bool may_be_next(const AccountedLine& line) const {
    return has_next() && may_stand_for(line.content(text_), parts_[next_], meant_);
  }

  /// Lines that leave nothing in the document may have stood in the text all along.
  bool is_meant_for_nothing(const AccountedLine& line) const {
    const bool left_nothing =
        line.role == LineRole::Dropped || (line.role == LineRole::XyzReference && !line.index);
    return left_nothing && !may_be_next(line);
  }

  bool matches_next_part(const AccountedLine& line) const {
    return has_next() && parts_[next_].role == line.role && parts_[next_].index == line.index;
  }

  void explain_other_role(const AccountedLine& line) {
    std::string found = line.role == LineRole::Dropped ? "would be dropped with a warning"
                                                       : "would be read as " + name_found(line);
    if (may_be_next(line)) {
      found += ", not " + std::string(line.role == LineRole::Dropped ? "read as " : "as ") +
               name_part(parts_[next_], meant_);
      if (is_taken_for_an_earlier_section(line))
        found += "; another post-processing line in front of it avoids that";
    } else {
      found += ", which is not meant";
    }
    explain(line, found);
  }

  std::string name_found(const AccountedLine& line) const {
    return name_part({line.role, line.index}, proof_.found.input);
  }

  /// The first post-processing line ends the sections in front of it, unless it looks like one of
  /// their lines itself.
  bool is_taken_for_an_earlier_section(const AccountedLine& line) const {
    return parts_[next_].role == LineRole::PostCommand && line.role != LineRole::PostCommand &&
           line.role != LineRole::Dropped;
  }

  bool explain_other_content(const AccountedLine& line) {
    if (first_difference_ == nullptr || first_difference_->role != line.role ||
        first_difference_->index != line.index) {
      return false;
    }
    explain(line, "would be read otherwise: " + first_difference_->words);
    return true;
  }

  void explain_missing_part() {
    if (has_next()) {
      proof_.explanation = "no line would be read as " + name_part(parts_[next_], meant_) + " (" +
                           quoted(line_text(parts_[next_], meant_)) + ')';
    } else {
      proof_.explanation = proof_.comparison.differences.front().words;
    }
  }

  void explain(const AccountedLine& line, const std::string& words) {
    proof_.line = line.number;
    proof_.explanation = "line " + std::to_string(line.number) + ' ' + words;
  }

  std::string_view text_;
  const QuillInput& meant_;
  std::vector<MeantPart> parts_;
  std::size_t next_ = 0;
  Proof& proof_;
  const DocumentDifference* first_difference_ = nullptr;  // that belongs to a line
};

}  // namespace

Proof prove(std::string_view text, const QuillInput& meant, double max_change) {
  Proof proof;
  proof.found = parse_string(text);
  proof.comparison = compare(meant, proof.found.input, max_change);
  if (!proof.holds()) Explanation(text, meant, proof).find();
  return proof;
}

}  // namespace kelp::input::quill::edit_support
