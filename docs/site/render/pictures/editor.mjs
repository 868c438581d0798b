// An editor with the example input that has the most mistakes in it, coloured by the TextMate grammar.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { codeLines, LINE, svg } from './svg.mjs';

export function editor({ root, highlight }) {
  const name = 'careless.qin';
  const text = readFileSync(join(root, 'examples/inputs', name), 'utf8').trimEnd().replace(/\t/g, '    ').replace(/\r/g, '');
  const lines = text.split('\n');
  const numbers = lines.map((_, at) => `<text class="code number" x="42" y="${64 + at * LINE}" text-anchor="end">${at + 1}</text>`);
  const height = 64 + lines.length * LINE;
  return svg(640, height, 'An editor with an input: names, values, numbers and mistakes have their colours', `
<rect class="box" x="1" y="1" width="638" height="${height - 2}" rx="10"/>
<path class="bar" d="M1 36H639"/>
<circle class="dot" cx="22" cy="19" r="5"/><circle class="dot" cx="40" cy="19" r="5"/><circle class="dot" cx="58" cy="19" r="5"/>
<text class="name" x="84" y="24">${name}</text>
${numbers.join('\n')}
${codeLines(highlight(text, 'qin'), 58, 64)}`);
}
