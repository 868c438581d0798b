// The pages of the reference: one for each library, header and type.

import { escapeHtml, plainText, scrollable } from '../html.mjs';
import { declaration } from './declaration.mjs';
import { makeDescriber } from './description.mjs';
import { includeOf, placeReference, shortName } from './names.mjs';
import { childrenOf, readReference, textOf } from './xml.mjs';

const LIBRARIES = [
  ['reference.html', 'libkelp_quill_inp', 'Documents, reading, writing, editing and building.',
    (path) => /^kelp\/input\/quill\/[^/]*$/.test(path)],
  ['reference-lossless.html', 'libkelp_quill_lossless', 'For programs that edit the files of their users.',
    (path) => path.startsWith('kelp/input/quill/lossless/')],
  ['reference-text.html', 'libkelp_core_text', 'Text functions that do not depend on the locale, and the types of molecules.',
    (path) => path.startsWith('kelp/core/')],
  ['reference-elements.html', 'libkelp_chem_elements', 'The chemical elements by symbol.',
    (path) => path.startsWith('kelp/chem/')],
];

function table(rows) {
  const cells = rows.map(([name, words]) => `<tr><td>${name}</td><td>${words}</td></tr>\n`);
  return rows.length ? scrollable(`<table class="members">\n${cells.join('')}</table>`) : '';
}

class ReferencePages {
  constructor(headers, highlight) {
    this.headers = headers;
    this.addresses = placeReference(headers);
    this.describe = makeDescriber(highlight, this.addresses);
  }

  link(node, name) {
    return `<a href="${this.addresses.get(node.getAttribute('id'))}"><code>${escapeHtml(name)}</code></a>`;
  }

  enumerators(member) {
    return table(childrenOf(member, 'enumvalue').map((value) =>
      [`<code>${escapeHtml(textOf(value, 'name'))}</code>`, this.describe.brief(value)]));
  }

  member(member) {
    const anchor = this.addresses.get(member.getAttribute('id')).split('#')[1];
    return `<section class="member">
<h3 id="${anchor}"><code>${escapeHtml(textOf(member, 'name'))}</code> <a class="anchor" href="#${anchor}" aria-label="Link to this heading">#</a></h3>
<pre class="declaration"><code>${declaration(member, this.describe.inline)}</code></pre>
${this.describe.blocks(member)}${this.enumerators(member)}</section>\n`;
  }

  list(members) {
    // Of overloads, the first one is listed.
    const first = new Map([...members].reverse().map((member) => [textOf(member, 'name'), member]));
    return table([...first].reverse().map(([name, member]) => [this.link(member, name), this.describe.brief(member)]));
  }

  members(members) {
    if (members.length === 0) return '';
    return `<h2 id="members">Members</h2>\n${this.list(members)}\n<h2 id="in-full">In full</h2>\n${members.map((member) => this.member(member)).join('')}`;
  }

  page(file, title, html, members) {
    const sections = [
      { anchor: '', heading: title, text: plainText(html).slice(0, 600) },
      ...members.map((member) => ({
        anchor: this.addresses.get(member.getAttribute('id')).split('#')[1],
        heading: textOf(member, 'name'),
        text: plainText(this.describe.blocks(member)),
      })),
    ];
    const names = new Map([...members].reverse().map((member) => [textOf(member, 'name'), member]));
    const contents = [...names].reverse().map(([text, member]) =>
      ({ level: 3, text, slug: this.addresses.get(member.getAttribute('id')).split('#')[1] }));
    return { file, title, html: `<h1>${escapeHtml(title)}</h1>\n${html}`, contents, sections, kind: 'article reference' };
  }

  typePage(header, type) {
    const isAlone = header.types.length === 1 && header.members.length === 0;
    const example = isAlone ? this.describe.blocks(header.node) : this.describe.example(header.node);
    return this.page(type.page, shortName(type.name), `<p class="include"><code>#include "<a href="${header.page}">${includeOf(header)}</a>"</code></p>
${this.describe.blocks(type.node)}
${example ? `<h2 id="example">Example</h2>\n${example}` : ''}
${this.members(type.members)}`, type.members);
  }

  headerPage(header) {
    const types = header.types.map((type) => [`<a href="${type.page}"><code>${escapeHtml(shortName(type.name))}</code></a>`, this.describe.brief(type.node)]);
    return this.page(header.page, includeOf(header), `${this.describe.blocks(header.node)}
${types.length ? `<h2 id="types">Types</h2>\n${table(types)}` : ''}
${this.members(header.members)}`, header.members);
  }

  libraryPage([file, name, words, has]) {
    const headers = this.headers.filter((header) => has(includeOf(header)));
    const parts = headers.map((header) => {
      const types = header.types.map((type) => [`<a href="${type.page}"><code>${escapeHtml(shortName(type.name))}</code></a>`, this.describe.brief(type.node)]);
      return `<h2 id="${header.page.replace('.html', '')}"><a href="${header.page}">${includeOf(header)}</a></h2>
<p>${this.describe.brief(header.node)}</p>
${table(types)}${this.list(header.members)}`;
    });
    const contents = headers.map((header) => ({ level: 2, text: includeOf(header).replace(/^.*\//, ''), slug: header.page.replace('.html', '') }));
    return { file, title: name, html: `<h1>${name}</h1>\n<p>${words}</p>\n${parts.join('\n')}`, contents, kind: 'article reference',
      sections: [{ anchor: '', heading: name, text: words }] };
  }

  all() {
    return [
      ...LIBRARIES.map((library) => this.libraryPage(library)),
      ...this.headers.map((header) => this.headerPage(header)),
      ...this.headers.flatMap((header) => header.types.map((type) => this.typePage(header, type))),
    ];
  }
}

export const referenceGroup = {
  title: 'C++ reference',
  pages: LIBRARIES.map(([file, title]) => ({ file, title: title.replace(/^lib/, '') })),
};

export function referencePages(folder, highlight) {
  return new ReferencePages(readReference(folder), highlight).all();
}
