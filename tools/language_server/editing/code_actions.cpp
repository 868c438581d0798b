#include "language_server/editing/code_actions.hpp"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "language_server/editing/changed_lines.hpp"
#include "language_server/editing/offered_edit.hpp"
#include "language_server/editing/text_edits.hpp"
#include "language_server/facts/source_of_text.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::string_view quick_fix = "quickfix";
constexpr std::string_view fix_all = "source.fixAll";

/// Whether the client asks for actions of a kind: for all, or for this kind or one it is part of.
bool is_asked_for(std::string_view kind, const Json& context) {
  const Json& only = find_member(context, "only");
  if (!only.is_array()) return true;
  return std::any_of(only.begin(), only.end(), [&](const Json& wanted) {
    if (!wanted.is_string()) return false;
    const std::string& name = wanted.get_ref<const std::string&>();
    return name.empty() || name == kind || kind.substr(0, name.size() + 1) == name + ".";
  });
}

bool touch(const lint::Range& left, const lint::Range& right) {
  return left.offset <= right.end() && right.offset <= left.end();
}

/// The diagnostics that a client shows, by their codes and ranges.
class ShownDiagnostics {
 public:
  explicit ShownDiagnostics(const Json& context) {
    const Json& shown = find_member(context, "diagnostics");
    if (!shown.is_array()) return;
    for (const Json& diagnostic : shown)
      lists_[key(find_member(diagnostic, "code"), find_member(diagnostic, "range"))].push_back(
          diagnostic);
  }

  /// Returns those about a finding.
  Json about(const lint::Finding& finding, const Snapshot& snapshot) const {
    const Json range = to_json(snapshot.position_range_of(finding.range));
    const auto list = lists_.find(key(finding.code, range));
    return list == lists_.end() ? Json::array() : list->second;
  }

 private:
  static Json key(const Json& code, const Json& range) { return Json::array({code, range}); }

  std::map<Json, Json> lists_ = {};
};

bool has_safe_mend(const lint::Finding& finding) { return finding.mend && finding.mend->is_safe; }

/// Appends the corrections for the findings in a range.
void append_quick_fixes(Json& actions, const Snapshot& snapshot, const lint::Range& range,
                        const Json& context, const lint::Findings& findings,
                        const ClientAbilities& client) {
  const SourceOfText source(snapshot.read());
  const ShownDiagnostics shown(context);
  for (const lint::Finding& finding : findings) {
    if (!touch(finding.range, range)) continue;
    for (const OfferedEdit& offer : offered_edits(finding, *source)) {
      Json action = {{"title", offer.title},
                     {"kind", quick_fix},
                     {"diagnostics", shown.about(finding, snapshot)},
                     {"edit", workspace_edit(offer.edits, snapshot, client)}};
      if (offer.is_safe) action["isPreferred"] = true;
      actions.push_back(std::move(action));
    }
  }
}

void append_fix_all(Json& actions, const Snapshot& snapshot, const Corrections& corrections,
                    const ClientAbilities& client) {
  const lint::Findings& findings = corrections.findings;
  if (std::none_of(findings.begin(), findings.end(), has_safe_mend)) return;
  const std::string text = corrections.mended_text();
  actions.push_back(
      {{"title", "make all safe corrections"},
       {"kind", fix_all},
       {"edit", workspace_edit(changed_lines(snapshot.text(), text), snapshot, client)}});
}

}  // namespace

Json code_actions(const Snapshot& snapshot, const lint::Range& range, const Json& context,
                  const Corrections& corrections, const ClientAbilities& client) {
  Json actions = Json::array();
  if (!client.has_literal_code_actions) return actions;
  if (is_asked_for(quick_fix, context))
    append_quick_fixes(actions, snapshot, range, context, corrections.findings, client);
  if (is_asked_for(fix_all, context)) append_fix_all(actions, snapshot, corrections, client);
  return actions;
}

Json code_action_options() { return {{"codeActionKinds", Json::array({quick_fix, fix_all})}}; }

}  // namespace kelp::input::quill::language_server
