// The pictures of the pages, as SVG within the page: so they take their colours from site.css and follow
// light and dark.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

/** Makes a function from the name of a picture to its SVG. */
export function makePictures(root) {
  return (name) => readFileSync(join(root, 'docs/site/pictures', `${name}.svg`), 'utf8');
}
