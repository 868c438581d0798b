// Turns the descriptions that Doxygen read from comments into HTML.

import { codeBlock } from '../highlight.mjs';
import { escapeHtml } from '../html.mjs';
import { childOf, childrenOf } from './xml.mjs';

const TAGS = { computeroutput: 'code', emphasis: 'em', bold: 'strong', itemizedlist: 'ul', orderedlist: 'ol', listitem: 'li' };
const BLOCKS = ['verbatim', 'programlisting', 'itemizedlist', 'orderedlist', 'simplesect'];

/** {inline(node), blocks(node)}: the content of a node as HTML. */
export function makeDescriber(highlight, addresses) {
  const link = (node, html) => {
    const address = addresses.get(node.getAttribute('refid'));
    return address ? `<a href="${address}">${html}</a>` : html;
  };

  const inline = (node) => [...node.childNodes].map(piece).join('');

  function piece(node) {
    if (node.nodeType === 3) return escapeHtml(node.nodeValue);
    if (node.nodeType !== 1) return '';
    const tag = node.tagName;
    if (tag === 'para') return paragraph(node);
    if (tag === 'ref') return link(node, inline(node));
    if (tag === 'sp') return ' ';
    if (tag === 'ndash') return '–';
    if (tag === 'verbatim') return codeBlock(highlight, node.textContent, 'cpp');
    if (tag === 'programlisting') return codeBlock(highlight, listing(node), 'cpp');
    if (TAGS[tag]) return `<${TAGS[tag]}>${inline(node)}</${TAGS[tag]}>`;
    throw new Error(`the reference has an element that has no form on the site: ${tag}`);
  }

  // A paragraph of Doxygen may contain blocks, one of HTML may not.
  function paragraph(node) {
    let open = '';
    let html = '';
    const close = () => {
      if (open.trim()) html += `<p>${open.trim()}</p>\n`;
      open = '';
    };
    for (const child of node.childNodes) {
      if (child.nodeType === 1 && BLOCKS.includes(child.tagName)) {
        close();
        html += piece(child);
      } else {
        open += piece(child);
      }
    }
    close();
    return html;
  }

  const listing = (node) =>
    childrenOf(node, 'codeline').map((line) => line.toString().replace(/<sp\s*\/?>/g, ' ').replace(/<[^>]*>/g, '')).join('\n')
      .replace(/&lt;/g, '<').replace(/&gt;/g, '>').replace(/&quot;/g, '"').replace(/&amp;/g, '&');

  const descriptions = (node) => [childOf(node, 'briefdescription'), childOf(node, 'detaileddescription')].filter(Boolean);
  return {
    inline,
    /** The whole description of a type, header or member. */
    blocks: (node) => descriptions(node).flatMap((part) => childrenOf(part, 'para')).map(paragraph).join(''),
    /** Its first sentence. */
    brief: (node) => {
      const first = childrenOf(childOf(node, 'briefdescription') ?? node, 'para')[0];
      return first ? inline(first).trim() : '';
    },
    /** The first example of a header's description. */
    example: (node) => {
      const inDescriptions = (tag) => descriptions(node).flatMap((part) => [...part.getElementsByTagName(tag)]);
      const found = ['verbatim', 'programlisting'].flatMap(inDescriptions)[0];
      return found ? piece(found) : '';
    },
  };
}
