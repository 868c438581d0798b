// Which pages the site has, in the order of reading, and what they are called. A page of docs/ that no
// group names is put into the group "More", so that every page can be reached.

import { existsSync, readdirSync } from 'node:fs';
import { basename, join } from 'node:path';

const GROUPS = [
  ['Start', [
    ['docs/getting-started.md', 'Getting started'],
    ['docs/quill-inp.md', 'The tool'],
    ['docs/writing-files.md', 'How files are written'],
    ['docs/python.md', 'Python'],
    ['docs/python-reference.md', 'Python reference'],
    ['docs/editing.md', 'C++ by example'],
    ['examples/inputs/README.md', 'Example inputs'],
    ['docs/editors.md', 'Editors'],
    ['docs/language-server.md', 'The language server'],
    ['editors/vscode/README.md', 'Visual Studio Code'],
    ['editors/README.md', 'Files for editors'],
  ]],
  ['The format', [
    ['docs/cheat-sheet.md', 'Cheat sheet'],
    ['docs/traps.md', 'Traps'],
    ['docs/format.md', 'The format in full'],
    ['docs/findings.md', 'Findings of the linter'],
  ]],
  ['In programs', [
    ['docs/embedding.md', 'Embedding'],
    ['docs/packaging.md', 'Packaging'],
    ['docs/performance.md', 'Performance'],
  ]],
  ['Project', [
    ['docs/architecture.md', 'Architecture'],
    ['CONTRIBUTING.md', 'Contributing'],
    ['CHANGELOG.md', 'Changelog'],
    ['SECURITY.md', 'Security'],
  ]],
];

// Pages whose file is not called as their source.
const FILES = {
  'README.md': 'index',
  'examples/inputs/README.md': 'example-inputs',
  'editors/README.md': 'editor-files',
  'editors/vscode/README.md': 'vscode',
};

// How pages look that do not look like an article: the classes of their body.
const KINDS = {
  'docs/cheat-sheet.md': 'article sheet',
};

export function kindOf(source) {
  return KINDS[source];
}

export function fileOf(source) {
  return `${FILES[source] ?? basename(source, '.md').toLowerCase()}.html`;
}

function pagesOf(root, folder) {
  return readdirSync(join(root, folder))
    .filter((name) => name.endsWith('.md'))
    .sort()
    .map((name) => `${folder}/${name}`);
}

/** The Markdown pages of the tree in groups: [{title, pages: [{source, file, title}]}]. */
export function groupsOf(root) {
  const groups = GROUPS.map(([title, pages]) => ({
    title,
    pages: pages
      .filter(([source]) => existsSync(join(root, source)))
      .map(([source, name]) => ({ source, file: fileOf(source), title: name })),
  }));
  const named = new Set(groups.flatMap(({ pages }) => pages.map(({ source }) => source)));
  const others = pagesOf(root, 'docs').filter((source) => !named.has(source));
  if (others.length > 0) {
    const pages = others.map((source) => ({ source, file: fileOf(source), title: basename(source, '.md') }));
    groups.push({ title: 'More', pages });
  }
  return groups;
}

/** The pages of the linter's findings, which docs/findings.md links. */
export function findingPages(root) {
  return pagesOf(root, 'docs/lint').map((source) => ({ source, file: fileOf(source), title: basename(source, '.md') }));
}
