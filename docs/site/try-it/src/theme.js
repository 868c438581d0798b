// The look of the editors, in the colours of the page.

import { EditorView } from "@codemirror/view";

const roles = ["command", "charge-and-multiplicity", "atom", "reference", "trajectory", "post-processing",
               "dropped"];

function roleRules() {
  const rules = {};
  for (const role of roles) {
    rules[`.cm-line.role-${role}`] = { boxShadow: `inset 3px 0 var(--role-${role})`,
      backgroundColor: `color-mix(in srgb, var(--role-${role}) 8%, transparent)` };
    rules[`.words .cm-gutterElement.role-${role}`] = { color: `var(--role-${role})` };
  }
  return rules;
}

export const theme = EditorView.theme({
  "&": { height: "100%", color: "var(--text)", backgroundColor: "var(--page)", fontSize: "0.875rem" },
  "&.cm-focused": { outline: "2px solid var(--link)", outlineOffset: "-2px" },
  ".cm-scroller": { fontFamily: "var(--code)", lineHeight: "1.5" },
  ".cm-content": { caretColor: "var(--text)" },
  ".cm-gutters": { backgroundColor: "var(--panel)", color: "var(--quiet)",
                   borderRight: "1px solid var(--line)" },
  ".words .cm-gutterElement": { padding: "0 0.5rem 0 0.25rem", maxWidth: "var(--words-width)",
    overflow: "hidden", textOverflow: "ellipsis", whiteSpace: "nowrap" },
  ".cm-activeLine": { backgroundColor: "color-mix(in srgb, var(--link) 14%, transparent) !important" },
  ".cm-specialChar": { color: "var(--wrong)" },
  ".found": { textDecoration: "underline wavy var(--warning)", textUnderlineOffset: "3px" },
  ".found-error": { textDecorationColor: "var(--wrong)" },
  ".found-info": { textDecorationColor: "var(--link)" },
  ".cm-tooltip": { backgroundColor: "var(--panel)", color: "var(--text)", padding: "0.5rem 0.75rem",
    border: "1px solid var(--line)", maxWidth: "30rem", fontSize: "0.875rem" },
  ".cm-tooltip button, .cm-panel button": { font: "inherit", color: "var(--text)", cursor: "pointer",
    background: "var(--page)", border: "1px solid var(--line)", borderRadius: "4px", padding: "0.2rem 0.6rem" },
  ".cm-panels": { backgroundColor: "var(--panel)", color: "var(--text)" },
  ".cm-panel input": { backgroundColor: "var(--page)", color: "var(--text)" },
  ".added": { backgroundColor: "color-mix(in srgb, var(--charge-part) 20%, transparent)" },
  ".removed": { backgroundColor: "color-mix(in srgb, var(--wrong) 18%, transparent)" },
  ".place": { color: "var(--quiet)" },
  ...roleRules(),
});
