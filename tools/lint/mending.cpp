#include "lint/mending.hpp"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "lint/line_repair.hpp"
#include "lint/lint.hpp"

namespace kelp::input::quill::lint {

namespace {

using EditsByOffset = std::map<std::size_t, ByteEdit>;

bool is_apart(const ByteEdit& left, const ByteEdit& right) {
  if (left.range.offset == right.range.offset) return false;
  return left.range.end() <= right.range.offset || right.range.end() <= left.range.offset;
}

/// Edits that were taken do not overlap, so a new one can touch only the two next to its place.
bool fits(const EditsByOffset& taken, const ByteEdit& edit) {
  const auto next = taken.lower_bound(edit.range.offset);
  if (next != taken.end() && !is_apart(edit, next->second)) return false;
  return next == taken.begin() || is_apart(edit, std::prev(next)->second);
}

bool fits_whole(const EditsByOffset& taken, const Mend& mend) {
  return std::all_of(mend.edits.begin(), mend.edits.end(),
                     [&](const ByteEdit& edit) { return fits(taken, edit); });
}

}  // namespace

std::vector<ByteEdit> safe_edits(const Findings& findings, std::size_t& count) {
  EditsByOffset taken;
  count = 0;
  for (const Finding& finding : findings) {
    if (!finding.mend || !finding.mend->is_safe || !fits_whole(taken, *finding.mend)) continue;
    for (const ByteEdit& edit : finding.mend->edits) taken.emplace(edit.range.offset, edit);
    ++count;
  }
  std::vector<ByteEdit> edits;
  for (auto& [offset, edit] : taken) edits.push_back(std::move(edit));
  return edits;
}

MendedText mend(lossless::ReadText read, const Options& options,
                const std::function<bool(const Finding&)>& is_wanted) {
  MendedText mended{std::move(read)};
  for (;;) {
    Findings findings = find_all(mended.read, options);
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [&](const Finding& finding) { return !is_wanted(finding); }),
                   findings.end());
    std::size_t count = 0;
    const std::vector<ByteEdit> edits = safe_edits(findings, count);
    if (edits.empty()) return mended;
    std::string text = with_edits(mended.read.text, edits);
    findings = Findings();
    mended.read = lossless::ReadText();
    mended.read = lossless::read_text(std::move(text));
    mended.count += count;
  }
}

}  // namespace kelp::input::quill::lint
