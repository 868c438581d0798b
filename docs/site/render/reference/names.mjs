// Where everything of the reference is on the site: headers and types have pages, members have anchors.

import { namesWithoutDoubles } from '../markdown.mjs';
import { childrenOf, textOf } from './xml.mjs';

/** The path of a header as it is included. */
export function includeOf(header) {
  return header.path.replace(/^(include|src\/support)\//, '');
}

/** What a type is called below the namespace of the library. */
export function shortName(name) {
  return name.replace(/^kelp::(input::quill|core|chem)::/, '');
}

function pageOfHeader(header) {
  const path = includeOf(header).replace(/^kelp\/(input\/quill\/)?/, '');
  return `cpp-${path.replace(/\.hpp$/, '').replace(/[/_]/g, '-')}-header.html`;
}

function pageOfType(type) {
  const name = type.name.startsWith('kelp::core::') ? `core-${shortName(type.name)}` : shortName(type.name);
  return `cpp-${name.replace(/::/g, '-')}.html`;
}

/** Gives each header and type its `page`, and returns a map from Doxygen's names to addresses. */
export function placeReference(headers) {
  const addresses = new Map();
  const place = (members, page) => {
    const unique = namesWithoutDoubles();
    for (const member of members) {
      const address = `${page}#${unique(textOf(member, 'name'))}`;
      addresses.set(member.getAttribute('id'), address);
      for (const value of childrenOf(member, 'enumvalue')) addresses.set(value.getAttribute('id'), address);
    }
  };
  for (const header of headers) {
    header.page = pageOfHeader(header);
    addresses.set(header.node.getAttribute('id'), header.page);
    place(header.members, header.page);
    for (const type of header.types) {
      type.page = pageOfType(type);
      addresses.set(type.node.getAttribute('id'), type.page);
      place(type.members, type.page);
    }
  }
  return addresses;
}
