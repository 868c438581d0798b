// The texts that the search looks through. A page that is opened from the file system may not fetch
// anything, but it may load a classic script; so the texts are one.

/** Entries of a page: one for each of its sections. */
export function searchEntries({ file, title, sections }) {
  return sections.map(({ anchor, heading, text }) => ({
    page: title,
    heading,
    href: anchor ? `${file}#${anchor}` : file,
    text,
  }));
}

export function searchScript(entries) {
  const numbered = entries.map((entry, id) => ({ id, ...entry }));
  return `window.searchEntries = ${JSON.stringify(numbered).replace(/</g, '\\u003c')};\n`;
}
