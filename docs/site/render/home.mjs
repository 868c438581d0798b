// The first page. Its input is the first one of docs/format.md, and its three ways in are blocks of
// README.md, so that tests run what it shows.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { codeBlock } from './highlight.mjs';
import { escapeHtml } from './html.mjs';
import { findingPages } from './sources.mjs';

const WAYS = [
  ['Shell', 'In the shell', 'quill-inp.html', 'All verbs of the tool'],
  ['C++', 'In C++', 'getting-started.html', 'From a checkout to a program of your own'],
  ['Python', 'In Python', 'python.html', 'The Python package by example'],
];

function firstBlock(text, start, language) {
  const fence = new RegExp(`\`\`\`${language}\\n([\\s\\S]*?)\`\`\``);
  const from = text.indexOf(start);
  const block = from >= 0 && fence.exec(text.slice(from));
  if (!block) throw new Error(`no block after: ${start}`);
  return { language: /^```(\w+)/.exec(block[0])[1], code: block[1].trimEnd() };
}

/** The lines of an input by the section that they belong to. */
function sectionsOf(lines) {
  const charge = lines.findIndex((line) => line && !line.startsWith('#'));
  const end = lines.findIndex((line, at) => at > charge && line === '');
  return [
    ['header', 'Header', 'what to compute', lines.slice(0, charge - 1)],
    ['charge', 'Charge and multiplicity', '', lines.slice(charge, charge + 1)],
    ['atoms', 'Coordinates', 'symbol, x, y and z of each atom', lines.slice(charge + 1, end)],
    ['post', 'Post-processing', 'constraints, scans, files; atoms count from 1', lines.slice(end + 1)],
  ];
}

function annotatedInput(root, highlight) {
  const { code } = firstBlock(readFileSync(join(root, 'docs/format.md'), 'utf8'), '## An input as a whole', 'qin');
  // The grammar needs the lines before a line, so the whole input is coloured at once.
  const lines = highlight(code, 'qin').split('\n');
  const plain = code.split('\n');
  const html = sectionsOf(plain).map(([part, name, words, own]) => {
    const from = plain.indexOf(own[0]);
    const text = lines.slice(from, from + own.length).join('\n');
    return `<div class="part ${part}"><pre><code>${text}</code></pre><p><strong>${name}</strong> ${words}</p></div>`;
  });
  return `<div class="input" role="group" aria-label="An input and its four sections">\n${html.join('\n')}\n</div>`;
}

function tabs(root, highlight) {
  const readme = readFileSync(join(root, 'README.md'), 'utf8');
  const buttons = WAYS.map(([name], at) =>
    `<button type="button" role="tab" id="tab-${at}" aria-controls="way-${at}">${name}</button>`);
  const panels = WAYS.map(([, start, page, words], at) => {
    const { language, code } = firstBlock(readme, `**${start}**`, '\\w+');
    return `<div role="tabpanel" id="way-${at}" aria-labelledby="tab-${at}">${codeBlock(highlight, code, language)}
<p><a href="${page}">${words}</a></p></div>`;
  });
  return `<div class="tabs"><div role="tablist" aria-label="Ways in">${buttons.join('\n')}</div>\n${panels.join('\n')}</div>`;
}

function claims(root) {
  const count = findingPages(root).length;
  const cards = [
    ['findings.html', 'It says what you did not mean', `A decimal comma ends the atoms, and nothing says so. The linter knows ${count} such slips, and mends those that have one possible correction.`, 'All findings'],
    ['embedding.html#editing-a-file-of-a-user', 'It changes only what must change', 'An edit keeps the layout, the digits and the notes of every other line, and is proved by reading the new text again.', 'How an edit is proved'],
    ['security.html', 'It reads any text', 'No line is refused, and none is lost without a warning that names it. Fuzz targets search for a text that breaks this.', 'What is searched, and how long'],
    ['performance.html', 'It is fast', 'Reading takes less time than a plain loop that splits the same lines, and writing about a quarter of the time of the standard conversion.', 'What was measured'],
  ];
  return `<ul class="claims">\n${cards.map(([page, title, words, proof]) =>
    `<li><h2>${title}</h2><p>${words}</p><p><a href="${page}">${proof}</a></p></li>`).join('\n')}\n</ul>`;
}

function allPages(groups) {
  const list = ({ title, pages }) => `<section><h2>${escapeHtml(title)}</h2><ul>
${pages.filter(({ file }) => file !== 'index.html').map(({ file, title: name }) => `<li><a href="${file}">${escapeHtml(name)}</a></li>`).join('\n')}
</ul></section>`;
  return `<div class="all-pages">\n${groups.map(list).join('\n')}\n</div>`;
}

export function homePage(root, highlight, groups) {
  const hasTryIt = groups.some(({ pages }) => pages.some(({ file }) => file === 'try-it.html'));
  const tryIt = hasTryIt ? '<a class="button" href="try-it.html">Try it in the browser</a>' : '';
  const words = 'A C++17 library, a Python package and a tool for the shell that read, check, edit and write the plain-text inputs of a computational-chemistry engine.';
  return {
    file: 'index.html',
    title: 'libkelp_quill_inp',
    kind: 'home',
    sections: [{ anchor: '', heading: 'libkelp_quill_inp', text: words }],
    html: `<h1>QUILL inputs, edited without losing a line</h1>
<p class="lead">${words}</p>
<p class="actions"><a class="button" href="getting-started.html">Get started</a> ${tryIt}</p>
<div class="first">
${annotatedInput(root, highlight)}
${tabs(root, highlight)}
</div>
${claims(root)}
${allPages(groups)}`,
  };
}
