// Bars of the ratios of docs/performance.md, which the script that measures puts there.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { escapeHtml } from '../html.mjs';
import { svg } from './svg.mjs';

// What the row of a figure is called on the page, and what the picture says about it.
const SHOWN = [
  ['read 10^4 atoms : plain contract loop', 'Reading 10,000 atoms', 'plain loop'],
  ['read 10^6 atoms : plain contract loop', 'Reading 1,000,000 atoms', 'plain loop'],
  ['write 10^4 atoms : to_chars into a reserved string', 'Writing 10,000 atoms', 'std::to_chars'],
  ['write 10^4 atoms : string stream', 'Writing 10,000 atoms', 'string stream'],
  ['parse, set a parameter, write 30 atoms : bare loops', 'Changing a small input', 'bare loops'],
];
const WIDTH = 420;
const LEFT = 250;
const STEP = 62;

function ratioOf(page, row) {
  const line = page.split('\n').find((candidate) => candidate.startsWith(`${row} `));
  const ratio = line && Number(/^\s+([\d.]+)/.exec(line.slice(row.length))?.[1]);
  if (!ratio) throw new Error(`docs/performance.md has no figure: ${row}`);
  return ratio;
}

function bar(kind, y, share, words) {
  const width = Math.max(2, Math.round(share * WIDTH));
  return `<rect class="${kind}" x="${LEFT}" y="${y}" width="${width}" height="16" rx="3"/>
<text class="words" x="${LEFT + width + 8}" y="${y + 13}">${escapeHtml(words)}</text>`;
}

export function performance({ root }) {
  const page = readFileSync(join(root, 'docs/performance.md'), 'utf8');
  const groups = SHOWN.map(([row, what, peer], at) => {
    const ratio = ratioOf(page, row);
    const longest = Math.max(1, ratio);
    const y = 8 + at * STEP;
    return `<text class="name" x="${LEFT - 14}" y="${y + 24}" text-anchor="end">${what}</text>
${bar('library', y, ratio / longest, `this library: ${ratio.toFixed(2)}`)}
${bar('peer', y + 20, 1 / longest, `${peer}: 1`)}`;
  });
  return svg(820, 8 + SHOWN.length * STEP, 'Time of the library compared with other ways to do the same; shorter is faster', groups.join('\n'));
}
