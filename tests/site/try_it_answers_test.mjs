// "Try it" says of every text what the program says of it: of the inputs that come with the library, and
// of those that the fuzzers keep.

import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { Program, allTexts, examined, openPage, startBrowser } from './try_it_page.mjs';

let browser;
let tab;
const program = new Program();
before(async () => {
  browser = await startBrowser();
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

/** What the program says, in the form of the page. The page has no other files. */
function saidByProgram(bytes) {
  program.write(bytes);
  return {
    warnings: JSON.parse(program.run('show', '--json')).warnings,
    findings: JSON.parse(program.run('lint', '--format', 'json', '--ignore', RULES_ON_FILES)).findings,
    canonical: program.run('fmt', '-q', '--allow-loss'),
    difference: program.run('fmt', '-q', '--allow-loss', '--diff'),
    document: program.run('json').toString(),
  };
}

const RULES_ON_FILES = 'QL402,QL403,QL404';

function saidByPage({ account, findings, canonical, difference, document }) {
  return { warnings: account.warnings, findings, canonical: asBytes(canonical), difference: asBytes(difference), document };
}

test('there are texts to compare', () => assert.ok(allTexts().length > 300));

for (const [name, bytes] of allTexts()) {
  test(`the page agrees with the program on ${name}`, async () => {
    const shown = await examined(tab, bytes);
    assert.deepEqual(asBytes(shown.read), bytes, 'the editor keeps every byte');
    assert.deepEqual(saidByPage(shown), saidByProgram(bytes));
    expectWords(shown.account, program.run('show', '--lines'));
  });
}

test('all safe fixes make the text that the program writes', async () => {
  const differing = allTexts().filter(([, bytes]) => {
    program.write(bytes);
    program.run('lint', '-q', '--fix');
    return !program.read().equals(bytes);
  });
  assert.ok(differing.length > 5);
  for (const [name, bytes] of differing) {
    await examined(tab, bytes);
    await tab.click('#fix-all');
    await tab.waitForFunction(() => document.getElementById('fix-all').disabled);
    const mended = await tab.evaluate(() => Array.from(globalThis.tryIt.shown().bytes));
    program.write(bytes);
    program.run('lint', '-q', '--fix');
    assert.deepEqual(Buffer.from(mended), program.read(), name);
  }
});
