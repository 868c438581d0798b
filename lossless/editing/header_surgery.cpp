#include "editing/header_surgery.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::lossless {

namespace {

/// Returns, for each command of the document, the old command whose line it takes. An added command
/// takes the line of a command that was removed from the end of the header, if there is one. So a
/// task that replaces another changes a line, and a task that was removed and added again does not.
std::vector<std::optional<std::size_t>> take_lines(std::vector<std::optional<std::size_t>> origins,
                                                   std::size_t old_count) {
  std::size_t next = 0;
  for (std::optional<std::size_t>& origin : origins) {
    if (origin) {
      next = *origin + 1;
    } else if (next < old_count) {
      origin = next++;
    }
  }
  return origins;
}

}  // namespace

HeaderSurgery::HeaderSurgery(const ReadText& read, const TrackedDocument& after)
    : before_(read.result.input),
      after_(after.document()),
      origins_(take_lines(after.origins(), before_.commands.size())) {
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    if (read.lines[i].role == LineRole::Command) positions_.push_back(i);
  }
}

void HeaderSurgery::change_lines(EditedLines& lines) {
  std::vector<bool> is_kept(positions_.size(), false);
  for (std::size_t i = 0; i < origins_.size(); ++i) {
    const std::optional<std::size_t> origin = origins_[i];
    if (!origin) continue;
    is_kept[*origin] = true;
    const HeaderCommand& command = after_.commands[i];
    if (!is_equal(before_.commands[*origin], command))
      lines.replace(positions_[*origin], quoted_line(command));
  }
  for (std::size_t i = 0; i < is_kept.size(); ++i) {
    if (!is_kept[i]) lines.remove(positions_[i]);
  }
}

void HeaderSurgery::add_lines(EditedLines& lines) {
  const auto is_added = [](const std::optional<std::size_t>& origin) { return !origin; };
  if (std::none_of(origins_.begin(), origins_.end(), is_added)) return;
  const std::size_t gap = positions_.empty() ? lines.begin_section(0) : end();
  for (std::size_t i = 0; i < origins_.size(); ++i) {
    if (!origins_[i]) lines.insert(gap, quoted_line(after_.commands[i]));
  }
  if (positions_.empty()) lines.end_section(gap);
}

std::string HeaderSurgery::quoted_line(const HeaderCommand& command) {
  QuotedCommand quoted = quote(command);
  std::move(quoted.problems.begin(), quoted.problems.end(), std::back_inserter(problems_));
  return to_string(quoted.command);
}

}  // namespace kelp::input::quill::lossless
