// Makes the site: build.mjs TREE XML SITE VERSION
//
// XML is the folder in which Doxygen wrote what it found in the headers. SITE/try-it/ is made by
// docs/site/try-it/build.mjs.

import { copyFileSync, readdirSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import { createRequire } from 'node:module';

import { makeFrame } from './frame.mjs';
import { makeHighlighter } from './highlight.mjs';
import { homePage } from './home.mjs';
import { makeRenderer } from './markdown.mjs';
import { makePictures } from './pictures/all.mjs';
import { referenceGroup, referencePages } from './reference/pages.mjs';
import { searchEntries, searchScript } from './search.mjs';
import { findingPages, groupsOf, kindOf } from './sources.mjs';
import { tryItEntry, tryItPage } from './try_it.mjs';

const [root, xml, site, version] = process.argv.slice(2);
const PROJECT = {
  project: 'libkelp_quill_inp',
  version,
  brief: 'reads, edits, builds and writes QUILL inputs',
};

const NOT_FOUND = {
  file: '404.html',
  title: 'No such page',
  html: `<h1>No such page</h1>
<p>The page that you asked for is not here. It may have another name now: search for it, or begin at
<a href="index.html">the first page</a>.</p>`,
};

function allGroups() {
  const [start, ...others] = groupsOf(root);
  const pages = [{ file: 'index.html', title: 'Home' }, tryItEntry, ...start.pages];
  const project = others.findIndex(({ title }) => title === 'Project');
  return [{ title: start.title, pages }, ...others.slice(0, project), referenceGroup, ...others.slice(project)];
}

function copyLook() {
  const look = join(root, 'docs/site/look');
  for (const name of readdirSync(look)) copyFileSync(join(look, name), join(site, name));
  const search = createRequire(import.meta.url).resolve('minisearch').replace(/cjs\/index\.cjs$/, 'umd/index.js');
  copyFileSync(search, join(site, 'minisearch.js'));
}

const highlight = await makeHighlighter(root);
const pictures = makePictures(root, highlight);
const files = new Set();
const groups = allGroups();
const sources = [...groups.flatMap(({ pages }) => pages), ...findingPages(root)].filter(({ source }) => source);
const ofPages = new Set(['README.md', ...sources.map(({ source }) => source)]);
const render = makeRenderer({ root, isPage: (source) => ofPages.has(source), files }, highlight, pictures);

const pages = [
  homePage(root, highlight, groups),
  tryItPage(root),
  ...sources.map(({ source, file }) => ({ file, kind: kindOf(source), ...render(source) })),
  ...referencePages(xml, highlight),
];
const frame = makeFrame(groups, PROJECT);
for (const page of [...pages, NOT_FOUND]) writeFileSync(join(site, page.file), frame(page));
writeFileSync(join(site, 'search-entries.js'), searchScript(pages.flatMap(searchEntries)));
for (const file of files) copyFileSync(join(root, file), join(site, basename(file)));
copyLook();
console.log(`${pages.length} pages`);
