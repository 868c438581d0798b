// The page "Try it". What it loads is made by docs/site/try-it/build.mjs.

import { readFileSync } from 'node:fs';
import { join } from 'node:path';

// Its own scripts, WebAssembly, and a worker that it makes from one of its scripts: nothing else, and
// nothing from another host.
const POLICY = "default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; " +
  "img-src 'self' data:; worker-src blob:; base-uri 'none'; form-action 'none'";

export const tryItEntry = { file: 'try-it.html', title: 'Try it' };

export function tryItPage(root) {
  const html = readFileSync(join(root, 'docs/site/try-it/page.html'), 'utf8');
  const text = html.slice(html.indexOf('<p>'), html.indexOf('</p>')).replace(/<[^>]*>/g, ' ').replace(/\s+/g, ' ');
  return {
    ...tryItEntry,
    html,
    kind: 'try-it',
    policy: POLICY,
    styles: ['try-it/try_it.css'],
    scripts: ['3Dmol.js', 'reader.js', 'examples.js', 'try_it.js'].map((name) => `try-it/${name}`),
    sections: [{ heading: 'Try it', text }],
  };
}
