#ifndef KELP_INPUT_QUILL_LINT_RULE_HPP
#define KELP_INPUT_QUILL_LINT_RULE_HPP

#include <string_view>
#include <vector>

#include "lint/finding.hpp"

namespace kelp::input::quill::lint {

class Collector;
class Source;

/// How bad a finding is. An error means that the reader understood the text in a way that its
/// author cannot have meant; a warning, that this is likely; an info, that it is worth a look.
enum class Severity { Info, Warning, Error };

/// What a rule looks at. Each group can be selected or ignored as one.
enum class Group { File, Header, Geometry, References, PostProcessing, Writing, Chemistry };

/// What else a finding explains. Findings that are explained are left out of a report.
enum class Explains {
  Itself,  // nothing else
  Line,    // every finding on its line
  Text,    // every finding in the text
};

/// How far the lines that a mend changes reach.
enum class MendReach {
  Line,  // the reader understands only this line differently
  Rest,  // and also lines after it, which were in another section because of the unmended line
};

/// One kind of finding. `message` and `advice` are templates for words_of(): "{name}" stands for a
/// fact, "{name|one|several}" chooses by a count, and "[...]" is left out when a fact in it is
/// absent.
struct Rule {
  std::string_view code;
  Severity severity;
  Group group;
  std::string_view title;
  std::string_view message;
  std::string_view advice;
  void (*check)(const Source&, Collector&);
  Explains explains = Explains::Itself;
  MendReach reach = MendReach::Line;
  std::string_view since = "0.1.0";
};

std::string_view name_of(Severity severity);
std::string_view name_of(Group group);

/// All groups, in the order of the enumeration.
const std::vector<Group>& all_groups();

/// Rules in a row. They are part of the program, so a pointer to one always stays valid.
class RuleTable {
 public:
  using value_type = Rule;

  constexpr RuleTable(const Rule* begin, const Rule* end) : begin_(begin), end_(end) {}
  constexpr const Rule* begin() const { return begin_; }
  constexpr const Rule* end() const { return end_; }

 private:
  const Rule* begin_;
  const Rule* end_;
};

/// The only table of rules, in the order of the codes. A code is never given to another rule.
RuleTable all_rules();

/// Returns whether what findings with this code point at has no effect: the reader leaves it out,
/// or nobody who looks a name up finds it.
bool points_at_text_without_effect(std::string_view code);

/// Returns the rule of a code, in any letter case, or a null pointer.
const Rule* find_rule(std::string_view code);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_RULE_HPP
