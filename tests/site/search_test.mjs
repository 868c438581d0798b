// The search finds pages by their words, also when the site is opened from the file system.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { addressOf, openTab, setLook, startBrowser } from './browser.mjs';

const FOUND = [
  // words, and the address of a result among the first three
  ['decimal comma', 'traps.html#a-decimal-comma'],
  ['ends the atoms too early', 'ql104.html'],
  ['set_parameter', 'cpp-InputEditor.html#set_parameter'],
  ['try_parse_double', 'cpp-core-text-header.html#try_parse_double'],
  ['grammar', 'format.html#grammar'],
  ['exit codes', 'quill-inp.html#exit-codes'],
  ['performence', 'performance.html'],
  // At the ends of long sections.
  ['WebAssembly diagnostics nothing leaves the browser', 'changelog.html#added'],
  ['xyzzyq', undefined],
];

let browser;
before(async () => { browser = await startBrowser(); });
after(() => browser.close());

async function openSearch() {
  const tab = await openTab(browser);
  await setLook(tab, 1400, 'light');
  await tab.goto(addressOf('index.html'));
  await tab.keyboard.press('/');
  await tab.waitForSelector('dialog.search[open]');
  return tab;
}

async function resultsOf(tab, words) {
  await tab.$eval('dialog.search input', (input, value) => {
    input.value = value;
    document.querySelector('.count').textContent = '';
    input.dispatchEvent(new Event('input'));
  }, words);
  await tab.waitForFunction(() => document.querySelector('.count').textContent !== '');
  return tab.$$eval('.results a', (links) => links.map((link) => link.getAttribute('href')));
}

test('words find their pages', async () => {
  const tab = await openSearch();
  for (const [words, expected] of FOUND) {
    const results = await resultsOf(tab, words);
    if (expected) assert.ok(results.slice(0, 3).includes(expected), `${words}: ${results.slice(0, 5)}`);
    else assert.deepEqual(results, [], words);
  }
  assert.deepEqual(tab.problems, []);
});

test('the key Enter opens the first result', async () => {
  const tab = await openSearch();
  await resultsOf(tab, 'try_parse_double');
  await Promise.all([tab.waitForNavigation(), tab.focus('dialog.search input').then(() => tab.keyboard.press('Enter'))]);
  assert.equal(tab.url(), addressOf('cpp-core-text-header.html#try_parse_double'));
});

test('a text that looks like HTML is shown as text', async () => {
  const tab = await openSearch();
  await resultsOf(tab, 'std::vector');
  assert.equal(await tab.$$eval('.results a *:not(strong, span)', (others) => others.length), 0);
});
