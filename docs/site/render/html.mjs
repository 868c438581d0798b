// What every part of the site needs in order to write HTML.

const ENTITIES = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;' };

export function escapeHtml(text) {
  return text.replace(/[&<>"]/g, (character) => ENTITIES[character]);
}

export function plainText(html) {
  return html
    .replace(/<[^>]*>/g, ' ')
    .replace(/&lt;/g, '<')
    .replace(/&gt;/g, '>')
    .replace(/&quot;/g, '"')
    .replace(/&amp;/g, '&')
    .replace(/\s+/g, ' ')
    .trim();
}

/** A table or a block that may be wider than the text, in a box that scrolls by itself. */
export function scrollable(html) {
  return `<div class="wide">${html}</div>\n`;
}
