// Before and after of an edit. Both texts are those of the example in docs/embedding.md, which the tests
// run, so the picture shows what the library does.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { codeLines, LINE, svg } from './svg.mjs';

function textIn(page, pattern) {
  const found = pattern.exec(page);
  if (!found) throw new Error(`docs/embedding.md has no ${pattern}`);
  return JSON.parse(`"${found[1]}"`).replace(/\n$/, '');
}

function side(name, html, changed, x) {
  const marks = changed.map((at) => `<rect class="changed" x="${x}" y="${34 + at * LINE}" width="352" height="${LINE}" rx="3"/>`);
  return `<text class="name" x="${x + 4}" y="20">${name}</text>
<rect class="box" x="${x}" y="30" width="352" height="${4 * LINE + 8}" rx="6"/>
${marks.join('')}
${codeLines(html, x + 12, 50)}`;
}

export function surgicalEdit({ root, highlight }) {
  const page = readFileSync(join(root, 'docs/embedding.md'), 'utf8').split('## Editing a file of a user')[1];
  const before = textIn(page, /read_text\("((?:[^"\\]|\\.)+)"\)/);
  const after = textIn(page, /edit\.text == "((?:[^"\\]|\\.)+)"/);
  const old = before.split('\n');
  const changed = after.split('\n').flatMap((line, at) => (line === old[at] ? [] : [at]));
  return svg(760, 34 + 4 * LINE + 44, 'A text before and after a parameter is set: one line changes',
    `${side('Before', highlight(before, 'qin'), changed, 4)}
${side('After: maxiter is set to 100', highlight(after, 'qin'), changed, 404)}
<text class="words" x="4" y="${34 + 4 * LINE + 32}">The changed line is marked. All others keep their bytes, also the odd blanks.</text>`);
}
