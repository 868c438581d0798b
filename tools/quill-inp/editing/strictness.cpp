#include "quill-inp/editing/strictness.hpp"

#include <utility>

#include "lint/lint.hpp"
#include "lint/selection.hpp"
#include "lint/wording.hpp"
#include "quill-inp/findings/project_choices.hpp"

namespace kelp::input::quill::tool {

namespace {

bool accept_read_text(Session& session, const std::string& argument,
                      const lossless::ReadText& read) {
  const ProjectChoices project = ProjectFinder().choices_for(argument);
  lint::Options options;
  options.known_commands = project.known_commands;
  // Every finding of a rule is an error, or none is.
  for (const lint::Finding& finding : lint::find_first(read, options, {1, 0}).findings) {
    const bool is_error = lint::find_rule(finding.code)->severity == lint::Severity::Error;
    if (!is_error || !lint::is_selected(finding.code, {{}, project.ignored})) continue;
    const std::size_t line = lint::place_of(finding.range.offset, read.lines).line;
    session.reporter().error({session.shown_name(argument), line},
                             "refused by --strict: " + lint::words_of(finding).message + " [" +
                                 std::string(finding.code) + "]");
    return false;
  }
  return true;
}

}  // namespace

bool accept_findings(Session& session, const std::string& argument, std::string& text,
                     const LossPolicy& policy) {
  if (!policy.is_strict) return true;
  lossless::ReadText read = lossless::read_text(std::move(text));
  const bool is_accepted = accept_read_text(session, argument, read);
  text = std::move(read.text);
  return is_accepted;
}

}  // namespace kelp::input::quill::tool
