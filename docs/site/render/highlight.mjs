// Colours code when the site is built. Inputs are coloured by the project's own TextMate grammar, so
// that the site shows them as editors do. Colours are classes: site.css says what they look like in
// light and dark.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { createHighlighterCore } from 'shiki/core';
import { createOnigurumaEngine } from 'shiki/engine/oniguruma';
import bash from '@shikijs/langs/bash';
import cmake from '@shikijs/langs/cmake';
import cpp from '@shikijs/langs/cpp';
import json from '@shikijs/langs/json';
import lua from '@shikijs/langs/lua';
import python from '@shikijs/langs/python';
import toml from '@shikijs/langs/toml';

import { escapeHtml } from './html.mjs';

// The class of a token, and the scopes that have it. A later row wins over an earlier one.
const CLASSES = [
  ['o', ['punctuation', 'keyword.operator']],
  ['s', ['string', 'punctuation.definition.string']],
  ['n', ['constant.numeric', 'constant.language']],
  ['k', ['keyword', 'storage', 'variable.language']],
  ['o', ['keyword.operator']],
  ['f', ['entity.name.function', 'support.function', 'keyword.control.task']],
  ['t', ['entity.name.type', 'support.type', 'entity.name.namespace']],
  ['v', ['variable.parameter', 'entity.name.tag', 'support.type.property-name']],
  ['c', ['comment', 'punctuation.definition.comment']],
  ['x', ['invalid']],
];

// A theme may only name colours, so each class has a colour that stands for it.
const colorOf = (row) => `#0000${(row + 16).toString(16)}`;
const classOf = new Map(CLASSES.map(([name], row) => [colorOf(row), name]));
const THEME = {
  name: 'classes',
  type: 'light',
  fg: '#000000',
  bg: '#ffffff',
  settings: CLASSES.map(([, scope], row) => ({ scope, settings: { foreground: colorOf(row) } })),
};

const LANGUAGE_OF = { qin: 'quill', written: 'quill', sh: 'bash', cxx: 'cpp' };

function spans(tokens) {
  return tokens
    .map(({ content, color }) => {
      const name = classOf.get((color ?? '').toLowerCase());
      return name ? `<span class="${name}">${escapeHtml(content)}</span>` : escapeHtml(content);
    })
    .join('');
}

/** Makes a function that turns code of a language into HTML; an unknown language stays plain. */
export async function makeHighlighter(root) {
  const grammar = join(root, 'editors/textmate/syntaxes/quill.tmLanguage.json');
  const quill = { ...JSON.parse(readFileSync(grammar, 'utf8')), name: 'quill' };
  const shiki = await createHighlighterCore({
    themes: [THEME],
    langs: [quill, bash, cmake, cpp, json, lua, python, toml],
    engine: createOnigurumaEngine(import('shiki/wasm')),
  });
  const known = new Set(shiki.getLoadedLanguages());

  // With a limit of time for each line, colours would depend on what else the machine does.
  const colored = (code, lang) =>
    shiki.codeToTokensBase(code, { lang, theme: 'classes', tokenizeTimeLimit: 0 }).map(spans).join('\n');
  const ofConsole = (line) =>
    line.startsWith('$ ')
      ? `<span class="prompt">$ </span>${colored(line.slice(2), 'bash')}`
      : `<span class="answer">${escapeHtml(line)}</span>`;

  return (code, language) => {
    const lang = LANGUAGE_OF[language] ?? language;
    if (lang === 'console') return code.split('\n').map(ofConsole).join('\n');
    return known.has(lang) ? colored(code, lang) : escapeHtml(code);
  };
}

/** A block of code with its language, which site.js gives a button for copying. */
export function codeBlock(highlight, code, language) {
  const text = code.replace(/\n$/, '');
  const name = language ? ` data-language="${escapeHtml(language)}"` : '';
  return `<pre${name}><code>${highlight(text, language)}</code></pre>\n`;
}
