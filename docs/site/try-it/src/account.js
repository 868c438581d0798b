// What the reader made of the lines of a text, by the positions that the editor counts in.

import { positionFinder, shown } from "./text_bytes.js";

/// The class of a role in style sheets.
export function roleClass(role) {
  return `role-${role.replaceAll(" ", "-")}`;
}

/// A finding with its place in the text, from 0.
function placed(finding, find) {
  const from = find(finding.offset);
  const to = find(finding.offset + finding.length);
  return { ...finding, from, to, message: shown(finding.message), advice: shown(finding.advice) };
}

/// Returns { lines, problems } from the reader's answer about `text`. `problems` are the warnings of the
/// reader and the findings, in the order of their lines.
export function accountOf(text, answer) {
  const { lines, warnings } = answer.account;
  const find = positionFinder(text);
  const findings = answer.findings.map((finding) => placed(finding, find));
  const ofReader = warnings.map(({ line, message }) => ({
    line, message: shown(message), severity: "reader", advice: "", code: null, fix: null }));
  const problems = [...ofReader, ...findings].sort((a, b) => (a.line ?? 0) - (b.line ?? 0));
  const ofLine = new Map();
  for (const problem of problems) {
    if (problem.line === null) continue;
    ofLine.set(problem.line, [...(ofLine.get(problem.line) ?? []), problem]);
  }
  return { lines, problems, ofLine };
}
