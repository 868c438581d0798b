// The first input of docs/format.md and its four sections, which the first page and the picture show.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { blockAfter } from './svg.mjs';

const SECTIONS = [
  ['header', 'Header', 'what to compute'],
  ['charge', 'Charge and multiplicity', 'two integers'],
  ['atoms', 'Coordinates', 'symbol, x, y and z of each atom'],
  ['post', 'Post-processing', 'constraints, scans, files; atoms count from 1'],
];

/** [{part, name, words, from, count, html}]: where each section begins, how many lines it has. */
export function inputSections(root, highlight) {
  const { code } = blockAfter(readFileSync(join(root, 'docs/format.md'), 'utf8'), '## An input as a whole', 'qin');
  const lines = code.split('\n');
  const charge = lines.findIndex((line) => line && !line.startsWith('#'));
  const end = lines.indexOf('', charge);
  const places = [[0, charge - 1], [charge, charge + 1], [charge + 1, end], [end + 1, lines.length]];
  // The grammar needs the lines before a line, so the whole input is coloured at once.
  const colored = highlight(code, 'qin').split('\n');
  return SECTIONS.map(([part, name, words], at) => {
    const [from, to] = places[at];
    return { part, name, words, from, count: to - from, html: colored.slice(from, to).join('\n') };
  });
}
