// "Try it" says of every text what the program says of it: of the inputs that come with the library, and
// of those that the fuzzers keep. The browser has no WebGL, so that no time goes into pictures.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Program, allTexts, examined, makeAllFixes, openPage, startBrowser } from './try_it_page.mjs';

let browser;
let tab;
const program = new Program();
before(async () => {
  browser = await startBrowser(false);
  tab = await openPage(browser);
});
after(async () => {
  program.close();
  await browser.close();
});

const asBytes = (text) => Buffer.from(text, 'base64');

/** The words of each line, from between its number and its text. */
function wordsOfLines(printed, count) {
  const lines = printed.toString('latin1').split('\n').slice(1, count + 1);
  return { lines, begin: String(count).length + 2 };
}

function expectWords(account, printed) {
  const { lines, begin } = wordsOfLines(printed, account.lines.length);
  const width = Math.max(...account.lines.map(({ words }) => words.length), 0);
  account.lines.forEach(({ words }, i) => {
    assert.equal(lines[i].slice(0, begin), `${String(i + 1).padStart(begin - 2)}  `);
    assert.equal(lines[i].slice(begin, begin + width).trimEnd(), words);
  });
}

function findingsIn(printed) {
  const { findings, more } = JSON.parse(printed);
  return { findings, more };
}

/** What the program says of the file that was written, in the form of the page. The page has no other files. */
async function saidByProgram() {
  const [shown, linted, canonical, difference, document] = await Promise.all([
    program.run('show', '--json'), program.run('lint', '--format', 'json', '--ignore', RULES_ON_FILES),
    program.run('fmt', '-q', '--allow-loss'), program.run('fmt', '-q', '--allow-loss', '--diff'), program.run('json')]);
  return { warnings: JSON.parse(shown).warnings, ...findingsIn(linted), canonical, difference,
    document: document.toString() };
}

const RULES_ON_FILES = 'QL402,QL403,QL404';

function saidByPage({ account, findings, more, canonical, difference, document }) {
  return { warnings: account.warnings, findings, more, canonical: asBytes(canonical), difference: asBytes(difference), document };
}

test('the page says that a browser without WebGL draws no pictures', async () => {
  await tab.waitForFunction(() => document.getElementById('molecule-note').textContent !== '');
  assert.match(await tab.$eval('#molecule-note', (note) => note.textContent), /^This browser draws no pictures/);
  assert.deepEqual(tab.problems, []);
});

test('there are texts to compare', () => assert.ok(allTexts().length > 300));

for (const [name, bytes] of allTexts()) {
  test(`the page agrees with the program on ${name}`, async () => {
    program.write(bytes);
    const [shown, said, lines] = await Promise.all([examined(tab, bytes), saidByProgram(), program.run('show', '--lines')]);
    assert.deepEqual(asBytes(shown.read), bytes, 'the editor keeps every byte');
    assert.deepEqual(saidByPage(shown), said);
    expectWords(shown.account, lines);
  });
}

test('all safe fixes make the text that the program writes', async () => {
  let differing = 0;
  for (const [name, bytes] of allTexts()) {
    program.write(bytes);
    await program.run('lint', '-q', '--fix');
    const expected = program.read();
    if (expected.equals(bytes)) continue;
    ++differing;
    await examined(tab, bytes);
    await makeAllFixes(tab);
    const mended = await tab.evaluate(() => Array.from(globalThis.tryIt.shown().bytes));
    assert.deepEqual(Buffer.from(mended), expected, name);
  }
  assert.ok(differing > 5);
});
