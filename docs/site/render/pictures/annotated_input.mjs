import { inputSections } from './input_sections.mjs';
import { codeLines, LINE, svg } from './svg.mjs';

const TOP = 14;

export function annotatedInput({ root, highlight }) {
  const sections = inputSections(root, highlight);
  const parts = sections.map(({ part, name, words, from, count, html }) => {
    const y = TOP + from * LINE;
    const middle = y + (count * LINE) / 2;
    return `<g class="part ${part}">
<rect class="band" x="8" y="${y}" width="464" height="${count * LINE}" rx="4"/>
<rect class="edge" x="8" y="${y}" width="5" height="${count * LINE}" rx="2"/>
<path class="edge-line" d="M472 ${middle}h24"/>
${codeLines(html, 26, y + 16)}
<text class="name" x="504" y="${middle - 1}">${name}</text>
<text class="words" x="504" y="${middle + 16}">${words}</text>
</g>`;
  });
  const last = sections[sections.length - 1];
  return svg(830, TOP * 2 + (last.from + last.count) * LINE, 'An input and its four sections', parts.join('\n'));
}
