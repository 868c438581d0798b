// What the pictures share. They are written into the page, so that they take colours and fonts from
// site.css, and follow light and dark.

export const LINE = 22;
export const CHARACTER = 8.43;

/** Lines of coloured code, as the highlighter makes them, at a place of a picture. */
export function codeLines(html, x, y) {
  const lines = html.split('\n').map((line, at) => {
    const spans = line.replace(/<span class="([\w ]+)">/g, '<tspan class="$1">').replace(/<\/span>/g, '</tspan>');
    return `<text class="code" x="${x}" y="${y + at * LINE}" xml:space="preserve">${spans}</text>`;
  });
  return lines.join('\n');
}

export function svg(width, height, title, content) {
  return `<svg class="picture" viewBox="0 0 ${width} ${height}" width="${width}" height="${height}" role="img" aria-label="${title}">
<title>${title}</title>
${content}
</svg>`;
}

/** The code of the first block of a language after a text; throws if it is not there. */
export function blockAfter(page, start, language) {
  const from = page.indexOf(start);
  const block = from >= 0 && new RegExp(`\`\`\`(${language})\\n([\\s\\S]*?)\`\`\``).exec(page.slice(from));
  if (!block) throw new Error(`no block after: ${start}`);
  return { language: block[1], code: block[2].trimEnd() };
}
