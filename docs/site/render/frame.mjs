// The frame of every page: header, navigation, contents, footer. It has neither scripts nor styles of
// its own, so that a page with a strict content security policy can use it, too.

import { escapeHtml } from './html.mjs';

// What the header shows on wide screens; the navigation has everything.
const MAIN_PAGES = [
  ['getting-started.html', 'Start'],
  ['cheat-sheet.html', 'Format'],
  ['quill-inp.html', 'Tool'],
  ['python.html', 'Python'],
  ['reference.html', 'C++'],
  ['try-it.html', 'Try it'],
];

function link(file, title, current) {
  const mark = file === current ? ' aria-current="page"' : '';
  return `<a href="${file}"${mark}>${escapeHtml(title)}</a>`;
}

function navigation(groups, current) {
  const group = ({ title, pages }) =>
    `<li><span class="group">${escapeHtml(title)}</span><ul>\n` +
    pages.map((page) => `<li>${link(page.file, page.title, current)}</li>\n`).join('') +
    '</ul></li>\n';
  return `<ul>\n${groups.map(group).join('')}</ul>`;
}

function contentsList(contents) {
  if (contents.length < 2) return '';
  const items = contents.map(
    ({ level, slug, text }) => `<li class="level-${level}"><a href="#${slug}">${escapeHtml(text)}</a></li>\n`,
  );
  return `<details class="contents" open>
<summary>On this page</summary>
<nav aria-label="On this page"><ul>
${items.join('')}</ul></nav>
</details>`;
}

function policyOf(policy) {
  return policy && `\n<meta http-equiv="Content-Security-Policy" content="${escapeHtml(policy)}">`;
}

/**
 * Makes a function from {file, title, html, contents, kind, policy, styles, scripts} to a whole page. The last
 * three are a content security policy, and files that only this page loads.
 */
export function makeFrame(groups, { project, version, brief }) {
  const files = new Set(groups.flatMap(({ pages }) => pages.map(({ file }) => file)));
  const mainPages = MAIN_PAGES.filter(([file]) => files.has(file));

  return ({ file, title, html, contents = [], kind = 'article', policy = '', styles = [], scripts = [] }) => `<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">${policyOf(policy)}
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<meta name="description" content="${escapeHtml(`${title}: ${brief}`)}">
<title>${escapeHtml(title)}</title>
<link rel="icon" href="favicon.svg" type="image/svg+xml">
<link rel="stylesheet" href="site.css">${styles.map((name) => `\n<link rel="stylesheet" href="${name}">`).join('')}
</head>
<body class="${kind}">
<a class="skip" href="#text">To the text</a>
<header class="site">
<a class="site-name" href="index.html"><img src="favicon.svg" alt="" width="22" height="22">${project}</a>
<span class="site-version">${version}</span>
<nav class="main-pages" aria-label="Main pages">
${mainPages.map(([page, name]) => link(page, name, file)).join('\n')}
</nav>
<button type="button" class="open-search" aria-haspopup="dialog">Search <kbd>/</kbd></button>
<button type="button" class="open-pages" aria-expanded="false" aria-controls="pages">Pages</button>
</header>
<div class="columns">
<nav id="pages" class="pages" aria-label="Pages">
${navigation(groups, file)}
</nav>
<main id="text">
${contentsList(contents)}
<div class="text">
${html}
</div>
</main>
</div>
<footer class="site">${project} ${version}: ${escapeHtml(brief)}</footer>
<script src="site.js"></script>${scripts.map((name) => `\n<script src="${name}"></script>`).join('')}
</body>
</html>
`;
}
