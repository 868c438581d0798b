// Turns the Markdown pages of the tree into HTML.
//
// In the tree, pages link to one another by relative path, and to a heading by the name that Markdown
// viewers give it ("format.md#the-header"). All pages of the site are in one folder. A link to
// something that does not exist ends the build.

import { existsSync, readFileSync, statSync } from 'node:fs';
import { basename, dirname, join, normalize } from 'node:path';
import MarkdownIt from 'markdown-it';

import { codeBlock } from './highlight.mjs';
import { plainText, scrollable } from './html.mjs';
import { fileOf } from './sources.mjs';

/** The name that Markdown viewers give a heading. */
export function slugOf(heading) {
  return heading.toLowerCase().replace(/[^\p{L}\p{N}_\- ]/gu, '').trim().replace(/ /g, '-');
}

/** Names without their doubles: the second "written" is "written-1". */
export function namesWithoutDoubles() {
  const count = new Map();
  return (name) => {
    const seen = count.get(name) ?? 0;
    count.set(name, seen + 1);
    return seen === 0 ? name : `${name}-${seen}`;
  };
}

const parser = new MarkdownIt({ html: true });

/** Leaves out a drawing of characters that has a picture: <!-- picture: NAME, instead of the block -->. */
function withoutReplacedBlocks(tokens) {
  const replaced = (token) => token?.type === 'html_block' && /^<!-- picture: [\w-]+, instead/.test(token.content);
  return tokens.filter((token, at) => !(token.type === 'fence' && replaced(tokens[at - 1])));
}

/** The headings of a parsed page: [{level, text, slug, token}]. */
function headingsOf(tokens) {
  const unique = namesWithoutDoubles();
  return tokens.flatMap((token, at) => {
    if (token.type !== 'heading_open') return [];
    const inline = tokens[at + 1];
    const text = inline.children.map(({ content }) => content).join('');
    return [{ level: Number(token.tag.slice(1)), text, slug: unique(slugOf(text)), token }];
  });
}

function linkOnSite({ root, isPage, files }, source, href) {
  if (/^[a-z]+:/.test(href)) return href;
  const [path, anchor] = href.split('#');
  const target = path ? normalize(join(dirname(source), path)) : source;
  if (!existsSync(join(root, target)) || !statSync(join(root, target)).isFile()) {
    throw new Error(`${source}: no such file: ${path}`);
  }
  if (!target.endsWith('.md')) {
    files.add(target);
    return basename(target);
  }
  if (!isPage(target)) throw new Error(`${source}: not a page of the site: ${target}`);
  if (!anchor) return fileOf(target);
  const headings = headingsOf(parser.parse(readFileSync(join(root, target), 'utf8'), {}));
  if (!headings.some(({ slug }) => slug === anchor)) throw new Error(`${source}: no such heading: ${href}`);
  return `${path ? fileOf(target) : ''}#${anchor}`;
}

function* allLinks(tokens) {
  for (const token of tokens) {
    if (token.type === 'link_open') yield token;
    if (token.children) yield* allLinks(token.children);
  }
}

/** What a page says under each heading, for the search. */
function sectionsOf(headings, render, tokens) {
  const starts = headings.map(({ token }) => tokens.indexOf(token));
  return headings.map(({ slug, text, level }, at) => ({
    anchor: level === 1 ? '' : slug,
    heading: text,
    text: plainText(render(tokens.slice(starts[at] + 3, starts[at + 1]))),
  }));
}

/**
 * Makes a function from the path of a page in the tree to {title, html, contents, sections}. The
 * tree is {root, isPage, files}: files other than pages that pages link are added to `files`. Pictures are
 * HTML that takes the place of comments such as <!-- picture: architecture -->.
 */
export function makeRenderer(tree, highlight, pictures) {
  const { root } = tree;
  const rules = parser.renderer.rules;
  rules.fence = (tokens, at) => codeBlock(highlight, tokens[at].content, tokens[at].info.trim());
  rules.table_open = () => '<div class="wide"><table>\n';
  rules.table_close = () => '</table></div>\n';
  rules.heading_close = (tokens, at) => {
    const slug = tokens[at - 2].attrGet('id');
    const link = slug ? ` <a class="anchor" href="#${slug}" aria-label="Link to this heading">#</a>` : '';
    return `${link}</${tokens[at].tag}>\n`;
  };
  rules.html_block = (tokens, at) => {
    const picture = /^<!-- picture: ([\w-]+)/.exec(tokens[at].content);
    if (!picture) {
      if (/^<!--/.test(tokens[at].content)) return '';
      throw new Error(`a page has HTML of its own: ${tokens[at].content}`);
    }
    return scrollable(pictures(picture[1]));
  };

  return (source) => {
    const tokens = withoutReplacedBlocks(parser.parse(readFileSync(join(root, source), 'utf8'), {}));
    for (const link of allLinks(tokens)) {
      link.attrSet('href', linkOnSite(tree, source, link.attrGet('href')));
    }
    const headings = headingsOf(tokens);
    const render = (part) => parser.renderer.render(part, parser.options, {});
    const sections = sectionsOf(headings, render, tokens);
    for (const { level, slug, token } of headings) if (level > 1) token.attrSet('id', slug);
    return {
      title: headings[0].text,
      // An empty cell is the head of nothing.
      html: render(tokens).replace(/<th><\/th>/g, '<td></td>'),
      contents: headings.filter(({ level }) => level === 2 || level === 3),
      sections,
    };
  };
}
