// Every page opens without an error and without anything that runs out of its box, in light and dark, in
// wide and narrow windows, and has its title and its way to all other pages.

import assert from 'node:assert/strict';
import { readFileSync, readdirSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';

import { addressOf, openTab, pages, setLook, site, startBrowser } from './browser.mjs';
import { overflowOf } from './layout.mjs';

const LOOKS = [[1400, 'light'], [420, 'light'], [420, 'dark'], [1400, 'dark']];
const TITLES = {
  'index.html': 'libkelp_quill_inp',
  'format.html': 'The QUILL format',
  'quill-inp.html': 'quill-inp',
  'findings.html': 'Findings of the linter',
  'ql104.html': 'QL104: a line that ends the atoms too early',
  'cpp-InputEditor.html': 'InputEditor',
  'cpp-core-text-header.html': 'kelp/core/text.hpp',
  'cpp-lossless-TrackedDocument.html': 'lossless::TrackedDocument',
};

const contentOf = (page) => readFileSync(join(site, page), 'utf8');
const ofReference = pages.filter((page) => page.startsWith('cpp-'));

let browser;
before(async () => { browser = await startBrowser(); });
after(() => browser.close());

async function problemsOf(tab, address) {
  tab.problems.length = 0;
  await setLook(tab, ...LOOKS[0]);
  await tab.goto(address);
  const found = [];
  for (const [width, scheme] of LOOKS) {
    await setLook(tab, width, scheme);
    const overflow = await overflowOf(tab);
    found.push(...overflow.map((what) => `${width} ${scheme}: ${what}`));
  }
  return [...found, ...tab.problems];
}

test('what is wrong with a page is found', async () => {
  const tab = await openTab(browser);
  const broken = '<header class="site"><p style="height:90px">two rows</p></header><div style="width:2000px">wide</div>' +
    '<script>console.error("a complaint"); undefined.member;</script><img src="none.png">';
  const found = (await problemsOf(tab, `data:text/html,${encodeURIComponent(broken)}`)).join('\n');
  for (const expected of ['console: a complaint', 'exception: ', 'the page is 2', 'DIV : wide', 'more than one row']) {
    assert.ok(found.includes(expected), `${expected} is not in: ${found}`);
  }
});

test('pages open without an error, and nothing runs out of its box', async () => {
  const tab = await openTab(browser);
  const found = [];
  for (const page of pages) found.push(...(await problemsOf(tab, addressOf(page))).map((what) => `${page}: ${what}`));
  assert.deepEqual(found, []);
});

test('pages have their titles', () => {
  const titles = Object.keys(TITLES).map((page) => [page, /<title>(.*)<\/title>/.exec(readFileSync(join(site, page), 'utf8'))[1]]);
  assert.deepEqual(Object.fromEntries(titles), TITLES);
});

test('every page but that for pages that are not there can be reached from the first one', () => {
  const reached = new Set(['index.html']);
  for (const page of reached) {
    for (const [, target] of readFileSync(join(site, page), 'utf8').matchAll(/href="([\w-]+\.html)/g)) reached.add(target);
  }
  assert.deepEqual(pages.filter((page) => !reached.has(page)), ['404.html']);
});

test('pages of the reference have an example, but for those of headers with macros', () => {
  const withoutExample = ofReference.filter((page) => !contentOf(page).includes('<pre data-language="cpp">'));
  assert.deepEqual(withoutExample, ['cpp-export-header.html', 'cpp-lossless-export-header.html']);
  assert.deepEqual(ofReference.filter((page) => contentOf(page).includes('#ifndef')), []);
});

test('pages of types list their members', () => {
  const ofTypes = ofReference.filter((page) => !page.endsWith('-header.html'));
  assert.ok(ofTypes.length > 30);
  assert.deepEqual(ofTypes.filter((page) => !contentOf(page).includes('<h2 id="members">Members</h2>')), []);
});

test('pages have their pictures, in the colours of the page', () => {
  for (const page of ['architecture', 'editors', 'embedding', 'format', 'performance']) {
    const [picture] = /<svg class="picture"[^]*?<\/svg>/.exec(contentOf(`${page}.html`)) ?? [''];
    assert.match(picture, /role="img" aria-label="\w/, page);
    assert.doesNotMatch(picture, /#[0-9a-f]{3}|rgb\(|<style/i, page);
  }
});

test('the first screen shows an input, the ways in and the claims', async () => {
  const tab = await openTab(browser);
  await setLook(tab, 1400, 'light');
  await tab.goto(addressOf('index.html'));
  for (const part of ['.input', '.tabs', '.claims']) {
    const end = await tab.$eval(part, (element) => element.getBoundingClientRect().bottom);
    assert.ok(end > 0 && end < 900, `${part} ends at ${end}`);
  }
  assert.equal(await tab.$$eval('.input .part', (parts) => parts.length), 4);
  assert.equal(await tab.$$eval('.claims li a', (proofs) => proofs.length), 4);
});

const sheet = addressOf('cheat-sheet.html');

test('the cheat sheet is seen at once on a wide screen', async () => {
  const tab = await openTab(browser);
  await setLook(tab, 1400, 'light');
  await tab.goto(sheet);
  const ends = await tab.$$eval('.text > *', (parts) => parts.map((part) => part.getBoundingClientRect().bottom));
  assert.ok(ends.length > 4 && Math.max(...ends) < 800, `${ends}`);
});

test('the cheat sheet is printed on one sheet of paper', async () => {
  const tab = await openTab(browser);
  await tab.goto(sheet);
  const sheetsOf = async (format) =>
    Buffer.from(await tab.pdf({ format, preferCSSPageSize: false })).toString('latin1').match(/\/Type ?\/Page\b/g).length;
  assert.deepEqual([await sheetsOf('a4'), await sheetsOf('letter')], [1, 1]);
  await tab.goto(addressOf('traps.html'));
  assert.ok(await sheetsOf('a4') > 1);
});

test('contents are open beside the text, and folded above it', async () => {
  const tab = await openTab(browser);
  const isOpen = () => tab.$eval('details.contents', (contents) => contents.open);
  await setLook(tab, 1400, 'light');
  await tab.goto(addressOf('format.html'));
  assert.equal(await isOpen(), true);
  await setLook(tab, 420, 'light');
  await tab.goto(addressOf('format.html'));
  assert.equal(await isOpen(), false);
});

test('a narrow window has a button for the list of pages', async () => {
  const tab = await openTab(browser);
  await setLook(tab, 420, 'light');
  await tab.goto(addressOf('format.html'));
  const isVisible = () => tab.$eval('#pages', (list) => list.getClientRects().length > 0);
  assert.equal(await isVisible(), false);
  await tab.click('.open-pages');
  assert.equal(await isVisible(), true);
});

test('the copy button of a session in a shell copies its commands', async () => {
  const tab = await openTab(browser);
  await tab.evaluateOnNewDocument(() => {
    Object.defineProperty(navigator, 'clipboard', { value: { writeText: async (text) => { window.copied = text; } } });
  });
  await setLook(tab, 1400, 'light');
  await tab.goto(addressOf('index.html'));
  await tab.focus('#way-0 .copy');
  await tab.keyboard.press('Enter');
  assert.equal(await tab.evaluate(() => window.copied),
    'quill-inp set -i -q water_optimisation.qin opt.maxiter=100\nquill-inp get water_optimisation.qin opt.maxiter\n');
});

test('the tabs of the first page are changed by arrow keys', async () => {
  const tab = await openTab(browser);
  await setLook(tab, 1400, 'light');
  await tab.goto(addressOf('index.html'));
  const shown = () => tab.$$eval('[role=tabpanel]', (panels) => panels.filter(({ hidden }) => !hidden).map(({ id }) => id));
  await tab.focus('#tab-0');
  await tab.keyboard.press('ArrowRight');
  assert.deepEqual(await shown(), ['way-1']);
  await tab.keyboard.press('ArrowLeft');
  await tab.keyboard.press('ArrowLeft');
  assert.deepEqual(await shown(), ['way-2']);
});

test('the site is below 5 MB without what "Try it" loads', () => {
  const sizes = readdirSync(site).filter((name) => !/^try-it/.test(name)).map((name) => statSync(join(site, name)))
    .filter((state) => state.isFile()).map(({ size }) => size);
  assert.ok(sizes.length > 100);
  assert.ok(sizes.reduce((sum, size) => sum + size, 0) < 5e6);
});
