// Changes of the text in the editor, which are made where the text differs, so that the cursor and what can be
// seen stay in their places.

import { positionsOf, shown } from "./text_bytes.js";

/// Returns the changes for the edits of a fix of a text; the edits are in order and do not overlap.
export function changesOfEdits(text, edits) {
  const positions = positionsOf(text, edits.flatMap(({ offset, length }) => [offset, offset + length]));
  return edits.map((edit) => ({ from: positions.get(edit.offset), to: positions.get(edit.offset + edit.length),
                                insert: shown(edit.text) }));
}

/// The change between two texts without what they begin and end with alike; the old one begins at `at`.
function changeAt(at, old, now) {
  const most = Math.min(old.length, now.length);
  let begin = 0;
  while (begin < most && old[begin] === now[begin]) ++begin;
  let end = 0;
  while (end < most - begin && old.at(-1 - end) === now.at(-1 - end)) ++end;
  return { from: at + begin, to: at + old.length - end, insert: now.slice(begin, now.length - end) };
}

/// Returns the changes that make another text of a text: one for each line that differs, or only one if there
/// are more or fewer lines than before.
export function changesBetween(text, other) {
  const lines = text.split("\n");
  const otherLines = other.split("\n");
  if (lines.length !== otherLines.length) return [changeAt(0, text, other)];
  const changes = [];
  let at = 0;
  for (const [i, line] of lines.entries()) {
    if (line !== otherLines[i]) changes.push(changeAt(at, line, otherLines[i]));
    at += line.length + 1;
  }
  return changes;
}
