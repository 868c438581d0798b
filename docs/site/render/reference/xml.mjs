// Reads what Doxygen found in the headers: types, functions and enumerations, each with the header that
// declares it. Everything private is left out.

import { readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { DOMParser } from '@xmldom/xmldom';

export function childrenOf(node, ...names) {
  return [...node.childNodes].filter((child) => child.nodeType === 1 && (names.length === 0 || names.includes(child.tagName)));
}

export function childOf(node, name) {
  return childrenOf(node, name)[0];
}

export function textOf(node, name) {
  const child = name ? childOf(node, name) : node;
  return child ? child.textContent.trim() : '';
}

const isPublic = (member) => member.getAttribute('prot') !== 'private';

function membersOf(compound) {
  return childrenOf(compound, 'sectiondef').flatMap((section) => childrenOf(section, 'memberdef').filter(isPublic));
}

const lineOf = (node) => Number(childOf(node, 'location')?.getAttribute('line') ?? 0);
const headerOf = (node) => childOf(node, 'location')?.getAttribute('file') ?? '';

/** {headers: [{path, node, types, members}]}: types are {name, node, members}, in the order of lines. */
export function readReference(folder) {
  const compounds = readdirSync(folder)
    .filter((name) => name.endsWith('.xml') && !['index.xml', 'Doxyfile.xml'].includes(name))
    .flatMap((name) => {
      const document = new DOMParser().parseFromString(readFileSync(join(folder, name), 'utf8'), 'text/xml');
      return childrenOf(document.documentElement, 'compounddef');
    });
  const ofKind = (...kinds) => compounds.filter((node) => kinds.includes(node.getAttribute('kind')));
  const inOrder = (nodes) => nodes.sort((left, right) => lineOf(left) - lineOf(right));

  const types = inOrder(ofKind('class', 'struct'));
  const free = inOrder([...new Map(ofKind('namespace', 'file').flatMap(membersOf).map((node) => [node.getAttribute('id'), node])).values()]);
  return ofKind('file').map((node) => {
    const path = headerOf(node);
    return {
      path,
      node,
      types: types
        .filter((type) => headerOf(type) === path)
        .map((type) => ({ name: textOf(type, 'compoundname'), node: type, members: membersOf(type) })),
      members: free.filter((member) => headerOf(member) === path),
    };
  });
}
