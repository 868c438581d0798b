// Writes the declaration of a member as code with links to the types that it names.

import { escapeHtml } from '../html.mjs';
import { childOf, childrenOf, textOf } from './xml.mjs';

const LONGEST_LINE = 88;
const plainLength = (html) => html.replace(/<[^>]*>/g, '').replace(/&\w+;/g, '.').length;

// Doxygen has "std::optional< T > &".
const tidy = (html) => html.replace(/&lt; /g, '&lt;').replace(/ &gt;/g, '&gt;').replace(/ (&amp;|\*)/g, '$1');

function parameter(node, inline) {
  const type = childOf(node, 'type') ? tidy(inline(childOf(node, 'type')).trim()) : '';
  const name = textOf(node, 'declname');
  const value = textOf(node, 'defval');
  return [type, escapeHtml(name), value && `= ${escapeHtml(value)}`].filter(Boolean).join(' ');
}

function functionDeclaration(member, inline) {
  const type = childOf(member, 'type') ? tidy(inline(childOf(member, 'type')).trim()) : '';
  const start = `${type ? `${type} ` : ''}<b>${escapeHtml(textOf(member, 'name'))}</b>`;
  const parameters = childrenOf(member, 'param').map((node) => parameter(node, inline));
  const end = textOf(member, 'argsstring').replace(/^.*\)/, '').replace(/=\s*(\w+)$/, ' = $1').trim();
  const after = end ? ` ${escapeHtml(end)}` : '';
  const inOneLine = `${start}(${parameters.join(', ')})${after}`;
  if (plainLength(inOneLine) <= LONGEST_LINE) return inOneLine;
  return `${start}(\n    ${parameters.join(',\n    ')})${after}`;
}

export function declaration(member, inline) {
  const kind = member.getAttribute('kind');
  const name = `<b>${escapeHtml(textOf(member, 'name'))}</b>`;
  const type = childOf(member, 'type') ? tidy(inline(childOf(member, 'type')).trim()) : '';
  if (kind === 'function') return functionDeclaration(member, inline);
  if (kind === 'enum') return `enum class ${name}${type ? ` : ${type}` : ''}`;
  if (kind === 'typedef') return `using ${name} = ${type}`;
  if (kind === 'define') return `#define ${name}`;
  const value = textOf(member, 'initializer');
  return `${type} ${name}${value ? ` ${escapeHtml(value.replace(/^=\s*/, '= '))}` : ''}`;
}
