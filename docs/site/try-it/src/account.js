// What the reader made of the lines of a text, by the positions that the editor counts in.

import { positionsOf, shown } from "./text_bytes.js";

/// The class of a role in style sheets.
export function roleClass(role) {
  return `role-${role.replaceAll(" ", "-")}`;
}

/// The findings with their places in the text, from 0.
function placed(findings, text) {
  const ends = findings.flatMap(({ offset, length }) => [offset, offset + length]);
  const positions = positionsOf(text, ends);
  return findings.map((finding) => ({ ...finding, from: positions.get(finding.offset),
    to: positions.get(finding.offset + finding.length), message: shown(finding.message), advice: shown(finding.advice) }));
}

/// The problems of each line that has any, in their order.
function byLine(problems) {
  const ofLine = new Map();
  for (const problem of problems) {
    if (problem.line === null) continue;
    const same = ofLine.get(problem.line);
    if (same) same.push(problem);
    else ofLine.set(problem.line, [problem]);
  }
  return ofLine;
}

/// Returns { lines, problems, ofLine, more } from the reader's answer about `text`. `problems` are the warnings of the
/// reader and the findings, in the order of their lines. `ofLine` has those of each line that has
/// any. `more` says how many other findings there are, as pairs of a code and a number.
export function accountOf(text, answer) {
  const { lines, warnings } = answer.account;
  const findings = placed(answer.findings, text);
  const ofReader = warnings.map(({ line, message }) => ({
    line, message: shown(message), severity: "reader", advice: "", code: null, fix: null }));
  const problems = [...ofReader, ...findings].sort((a, b) => (a.line ?? 0) - (b.line ?? 0));
  return { lines, problems, ofLine: byLine(problems), more: Object.entries(answer.more) };
}
