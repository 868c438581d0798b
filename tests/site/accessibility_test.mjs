// Pages are usable by everybody: axe-core finds nothing on pages of every kind, in light and dark, wide
// and narrow, and Lighthouse gives full marks for accessibility and good practice.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { createRequire } from 'node:module';
import { extname, join } from 'node:path';
import { after, before, test } from 'node:test';
import lighthouse from 'lighthouse';

import { addressOf, openTab, pages, setLook, site, startBrowser } from './browser.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');
const OF_EVERY_KIND = ['index.html', 'cheat-sheet.html', 'traps.html', 'format.html', 'quill-inp.html', 'findings.html', 'ql104.html',
  'performance.html', 'architecture.html', 'reference.html', 'cpp-InputEditor.html', 'cpp-core-text-header.html', '404.html', 'try-it.html']
  .filter((page) => pages.includes(page));
const SCORED = ['index.html', 'format.html', 'cheat-sheet.html', 'try-it.html'].filter((page) => pages.includes(page));
const TYPES = { '.html': 'text/html', '.css': 'text/css', '.js': 'text/javascript', '.svg': 'image/svg+xml', '.json': 'application/json' };

let browser;
before(async () => { browser = await startBrowser(); });
after(() => browser.close());

async function violationsOf(tab) {
  await tab.evaluate(axe);
  const { violations } = await tab.evaluate(() => window.axe.run(document, { preload: false }));
  return violations.map(({ id, nodes }) => `${id}: ${nodes.slice(0, 3).map(({ html }) => html.slice(0, 120)).join(' | ')}`);
}

test('what axe-core finds is heard', async () => {
  const tab = await openTab(browser);
  await tab.goto('data:text/html,<html><body><img src="data:,"><p style="color:%23ccc;background:white">pale</p></body></html>');
  const found = (await violationsOf(tab)).map((violation) => violation.split(':')[0]);
  for (const rule of ['image-alt', 'html-has-lang', 'color-contrast']) assert.ok(found.includes(rule), `${rule}: ${found}`);
});

test('axe-core finds nothing', async () => {
  const tab = await openTab(browser);
  const found = [];
  for (const page of OF_EVERY_KIND) {
    for (const [width, scheme] of [[1400, 'light'], [420, 'dark']]) {
      await setLook(tab, width, scheme);
      await tab.goto(addressOf(page));
      found.push(...(await violationsOf(tab)).map((what) => `${page} ${width} ${scheme}: ${what}`));
    }
  }
  assert.deepEqual(found, []);
});

// Lighthouse does not open files.
function serve() {
  const server = createServer((request, response) => {
    const name = new URL(request.url, 'http://localhost').pathname.slice(1);
    try {
      const content = readFileSync(join(site, name));
      response.writeHead(200, { 'Content-Type': TYPES[extname(name)] ?? 'application/octet-stream' }).end(content);
    } catch {
      response.writeHead(404).end();
    }
  });
  return new Promise((resolve) => { server.listen(0, '127.0.0.1', () => resolve(server)); });
}

test('Lighthouse gives full marks', async () => {
  const server = await serve();
  const { port } = new URL(browser.wsEndpoint());
  const scores = [];
  for (const page of SCORED) {
    const { lhr } = await lighthouse(`http://127.0.0.1:${server.address().port}/${page}`,
      { port: Number(port), onlyCategories: ['accessibility', 'best-practices'], logLevel: 'error' });
    // The large scripts of "Try it" have no source maps, which has no part in the score.
    const missed = Object.values(lhr.audits).filter(({ id, score }) => score !== null && score < 1 && id !== 'valid-source-maps')
      .map(({ id }) => id);
    scores.push([page, lhr.categories.accessibility.score, lhr.categories['best-practices'].score, missed]);
  }
  server.close();
  assert.deepEqual(scores, SCORED.map((page) => [page, 1, 1, []]));
});
