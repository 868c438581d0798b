#include <algorithm>
#include <limits>

#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Lines that leave nothing in the document, and so are not written again.
bool leaves_nothing(const LineRecord& line) {
  const bool is_reference =
      line.role == LineRole::XyzReference || line.role == LineRole::Trajectory;
  return line.role == LineRole::Dropped || (is_reference && !line.index);
}

/// Returns the first of these lines, or the number of lines.
std::size_t find_vanishing_line(const Source& source) {
  const auto& lines = source.lines();
  return static_cast<std::size_t>(std::find_if(lines.begin(), lines.end(), leaves_nothing) -
                                  lines.begin());
}

/// Returns the line of the text whose part another one is taken for, if there is one.
std::optional<std::size_t> line_of(const Source& source,
                                   const std::optional<lossless::Part>& part) {
  if (!part) return std::nullopt;
  return lossless::find_line(source.lines(), part->role, part->index);
}

}  // namespace

// A line that is read as itself only because of a line before it, which is not written again.
void check_other_meaning(const Source& source, Collector& findings) {
  const std::size_t vanishing = find_vanishing_line(source);
  if (vanishing == source.lines().size() || source.broken_line()) return;
  const lossless::QuotedDocument quoted = lossless::quote(source.input());
  const lossless::Proof proof = lossless::prove(quoted.document.to_string(), source.input(),
                                                std::numeric_limits<double>::infinity());
  if (proof.holds() || !proof.explanation) return;
  const auto line = line_of(source, proof.explanation->wanted);
  if (!line || *line <= vanishing) return;
  const std::string_view other = source.trimmed(*line);
  findings.add({source.range_of(source.trimmed(vanishing)),
                {text_fact("other", other), count_fact("line", *line + 1)},
                {{source.range_of(other), "the line that would be read differently"}}});
}

}  // namespace kelp::input::quill::lint
