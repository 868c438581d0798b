// The first page. Its input is the first one of docs/format.md, and its three ways in are blocks of
// README.md, so that tests run what it shows.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { codeBlock } from './highlight.mjs';
import { escapeHtml } from './html.mjs';
import { inputSections } from './pictures/input_sections.mjs';
import { blockAfter } from './pictures/svg.mjs';
import { findingPages } from './sources.mjs';

const WAYS = [
  ['Shell', 'In the shell', 'quill-inp.html', 'All verbs of the tool'],
  ['C++', 'In C++', 'getting-started.html', 'From a checkout to a program of your own'],
  ['Python', 'In Python', 'python.html', 'The Python package by example'],
];

function annotatedInput(root, highlight) {
  const html = inputSections(root, highlight).map(({ part, name, words, html: code }) =>
    `<div class="part ${part}"><pre><code>${code}</code></pre><p><strong>${name}</strong> ${words}</p></div>`);
  return `<div class="input" role="group" aria-label="An input and its four sections">\n${html.join('\n')}\n</div>`;
}

function tabs(root, highlight) {
  const readme = readFileSync(join(root, 'README.md'), 'utf8');
  const buttons = WAYS.map(([name], at) =>
    `<button type="button" role="tab" id="tab-${at}" aria-controls="way-${at}">${name}</button>`);
  const panels = WAYS.map(([, start, page, words], at) => {
    const { language, code } = blockAfter(readme, `**${start}**`, '\\w+');
    return `<div role="tabpanel" id="way-${at}" aria-labelledby="tab-${at}">${codeBlock(highlight, code, language)}
<p><a href="${page}">${words}</a></p></div>`;
  });
  return `<div class="tabs"><div role="tablist" aria-label="Ways in">${buttons.join('\n')}</div>\n${panels.join('\n')}</div>`;
}

function claims(root) {
  const count = findingPages(root).length;
  const cards = [
    ['findings.html', 'It finds what you did not mean', `A decimal comma ends the atoms, and nothing says so. The linter knows ${count} such slips, and mends those that have one possible correction.`, 'All findings'],
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
  const words = 'A C++17 library, a Python package and a tool for the shell that read, check, edit and write the plain-text inputs of a computational-chemistry engine.';
  return {
    file: 'index.html',
    title: 'libkelp_quill_inp',
    kind: 'home',
    sections: [{ anchor: '', heading: 'libkelp_quill_inp', text: words }],
    html: `<h1>QUILL inputs, edited without losing a line</h1>
<p class="lead">${words}</p>
<p class="actions"><a class="button" href="getting-started.html">Get started</a>
<a class="button" href="try-it.html">Try it in the browser</a></p>
<div class="first">
${annotatedInput(root, highlight)}
${tabs(root, highlight)}
</div>
${claims(root)}
${allPages(groups)}`,
  };
}
