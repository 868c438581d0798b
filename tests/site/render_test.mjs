// How pages are made of Markdown: names of headings, links, colours, and what ends the build.

import assert from 'node:assert/strict';
import { mkdtempSync, mkdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { after, before, test } from 'node:test';

import { codeBlock, makeHighlighter } from '../render/highlight.mjs';
import { makeRenderer, namesWithoutDoubles, slugOf } from '../render/markdown.mjs';
import { searchScript } from '../render/search.mjs';
import { fileOf, groupsOf } from '../render/sources.mjs';

const PAGES = {
  'README.md': '# Home\n',
  'docs/format.md': '# The format\n\n## The header\n\nwords `code`\n\n## The header\n\n',
  'docs/extra.md': '# Extra\n',
  'docs/schema.json': '{}',
};

let root;
before(() => {
  root = mkdtempSync(join(tmpdir(), 'quill-site-'));
  for (const [path, text] of Object.entries(PAGES)) {
    mkdirSync(dirname(join(root, path)), { recursive: true });
    writeFileSync(join(root, path), text);
  }
});
after(() => rmSync(root, { recursive: true }));

const plain = (code) => code;

function render(markdown, files = new Set()) {
  writeFileSync(join(root, 'docs/page.md'), `# Page\n\n${markdown}\n`);
  const isPage = (source) => source !== 'docs/extra.md' && source.endsWith('.md');
  return makeRenderer({ root, isPage, files }, plain, (name) => `<svg>${name}</svg>`)('docs/page.md');
}

test('headings have the names that Markdown viewers give them', () => {
  for (const [heading, name] of [['The header', 'the-header'], ["missing ')' in a list", 'missing--in-a-list'],
    ['A safe "Save"', 'a-safe-save'], ['lint_all: C++', 'lint_all-c'], ['Ångström', 'ångström']]) {
    assert.equal(slugOf(heading), name);
  }
  const unique = namesWithoutDoubles();
  assert.deepEqual(['a', 'b', 'a', 'a'].map(unique), ['a', 'b', 'a-1', 'a-2']);
});

test('links lead to the pages of the site', () => {
  for (const [link, address] of [['format.md', 'format.html'], ['format.md#the-header', 'format.html#the-header'],
    ['format.md#the-header-1', 'format.html#the-header-1'], ['../README.md', 'index.html'], ['#own', '#own'],
    ['https://example.org/a.md', 'https://example.org/a.md']]) {
    assert.match(render(`[words](${link})\n\n## Own`).html, new RegExp(`href="${address}"`), link);
  }
});

test('a file that is linked becomes a part of the site', () => {
  const files = new Set();
  assert.match(render('[words](schema.json)', files).html, /href="schema.json"/);
  assert.deepEqual([...files], ['docs/schema.json']);
});

test('a link to something that does not exist ends the build', () => {
  for (const [link, message] of [['none.md', 'no such file'], ['format.md#none', 'no such heading'], ['../docs', 'no such file'],
    ['#none', 'no such heading'], ['extra.md', 'not a page of the site']]) {
    assert.throws(() => render(`[words](${link})`), (error) => error.message.includes(message), link);
  }
});

test('comments are left out, pictures are put in, and other HTML ends the build', () => {
  assert.doesNotMatch(render('<!-- figures: times -->').html, /figures/);
  assert.match(render('<!-- picture: tree -->\n\n```\nascii\n```').html, /<svg>tree<\/svg>[\s\S]*ascii/);
  assert.doesNotMatch(render('<!-- picture: tree, instead of the block -->\n\n```\nascii\n```').html, /ascii/);
  assert.throws(() => render('<script>alert(1)</script>'), /has HTML of its own/);
});

test('sections of a page are found by the search', () => {
  const { sections, title, contents } = render('first\n\n## Two & three\n\n`a < b`');
  assert.equal(title, 'Page');
  assert.deepEqual(sections, [{ anchor: '', heading: 'Page', text: 'first' },
    { anchor: 'two--three', heading: 'Two & three', text: 'a < b' }]);
  assert.deepEqual(contents.map(({ slug }) => slug), ['two--three']);
});

test('a text of the search cannot end its script', () => {
  assert.doesNotMatch(searchScript([{ text: '</script>' }]), /<\/script>/);
});

test('a page that no group names is in the group "More"', () => {
  const groups = groupsOf(root);
  assert.deepEqual(groups[groups.length - 1].pages.map(({ source }) => source).filter((source) => source !== 'docs/page.md'), ['docs/extra.md']);
  assert.equal(fileOf('docs/lint/QL104.md'), 'ql104.html');
});

test('code is coloured by classes, and stays as it is', async () => {
  const highlight = await makeHighlighter(process.env.KELP_QUILL_INP_TREE);
  const words = (html) => html.replace(/<[^>]*>/g, '').replace(/&lt;/g, '<').replace(/&gt;/g, '>').replace(/&quot;/g, '"').replace(/&amp;/g, '&');
  for (const [language, code, expected] of [
    ['qin', '#opt(tight)\n0 1\nO 0 0 0', '<span class="t">O</span>'],
    ['qin', '0 1\nXYZ w.xyz\nB 1 x', '<span class="x">B 1 x</span>'],
    ['cpp', 'const int a = 1;  // <&>', '<span class="n">1</span>'],
    ['console', '$ quill-inp show a.qin\n<a & b>', '<span class="answer">&lt;a &amp; b&gt;</span>'],
    ['unknown', '<b>', '&lt;b&gt;'],
  ]) {
    const html = highlight(code, language);
    assert.ok(html.includes(expected), html);
    assert.equal(words(html), code);
  }
  assert.equal(codeBlock(highlight, 'a\n', ''), '<pre><code>a</code></pre>\n');
});
