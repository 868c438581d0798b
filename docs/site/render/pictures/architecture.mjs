import { svg } from './svg.mjs';

// x, y, width, title, words
const BOXES = {
  reader: [20, 90, 170, 'Reader', 'src/reader/'],
  model: [300, 90, 200, 'Document model', 'types and lookup'],
  writer: [610, 90, 170, 'Writer', 'src/writer/'],
  editor: [230, 220, 160, 'InputEditor', 'changes a document'],
  builder: [430, 220, 160, 'InputBuilder', 'makes a document'],
  sisters: [20, 220, 170, 'Sister libraries', 'text, elements'],
};

function box([x, y, width, title, words]) {
  return `<rect class="box" x="${x}" y="${y}" width="${width}" height="62" rx="8"/>
<text class="name" x="${x + width / 2}" y="${y + 27}" text-anchor="middle">${title}</text>
<text class="words" x="${x + width / 2}" y="${y + 47}" text-anchor="middle">${words}</text>`;
}

const arrow = (path) => `<path class="arrow" d="${path}" marker-end="url(#arrow-head)"/>`;
const label = (x, y, text, anchor = 'middle') => `<text class="words" x="${x}" y="${y}" text-anchor="${anchor}">${text}</text>`;

export function architecture() {
  return svg(800, 300, 'The reader turns a text into a document, the editor and the builder change it, the writer makes a text of it', `
<defs><marker id="arrow-head" viewBox="0 0 10 10" refX="9" refY="5" markerWidth="8" markerHeight="8" orient="auto-start-reverse"><path class="head" d="M0 0 10 5 0 10z"/></marker></defs>
${Object.values(BOXES).map(box).join('\n')}
${label(105, 28, 'text or file')}${arrow('M105 38V88')}
${label(695, 28, 'text or file')}${arrow('M695 88V38')}
${arrow('M190 121H298')}${label(244, 112, 'ParseResult')}${label(244, 140, 'input, warnings')}
${arrow('M500 121H608')}${label(554, 112, 'QuillInput')}
${arrow('M105 152V218')}
${arrow('M320 220V154')}${arrow('M470 220V154')}
${arrow('M430 251H392')}
${arrow('M590 251H695V154')}${label(602, 270, 'to_string, write_file', 'start')}`);
}
