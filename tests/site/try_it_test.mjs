// "Try it" as its users have it: pasting, links, files, fixes, the picture and the keyboard; and what the
// page forbids.

import assert from 'node:assert/strict';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';

import { changesBetween } from '../try-it/src/text_changes.js';
import { actionsOn, address, examined, makeAllFixes, openPage, startBrowser } from './try_it_page.mjs';

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

let browser;
let tab;
before(async () => {
  browser = await startBrowser();
  tab = await openPage(browser);
});
after(() => browser.close());
afterEach(() => assert.deepEqual(tab.problems.splice(0), []));

const water = '#opt\n\n0 1\nO 0.0 0.0 0.1\nH 0.0 0.8 -0.5\nH 0.0 -0.8 -0.5\nB 1 2\nA 2 1 3\n';

const { textOf, inEditor, go, settle } = actionsOn(() => tab);

/** What the picture shows, which follows the text after a pause. */
async function drawn() {
  await new Promise((resolve) => setTimeout(resolve, 400));
  return tab.evaluate(() => globalThis.tryIt.picture.view.drawn());
}

async function paste(text) {
  await tab.focus('#editor >>> .cm-content');
  await tab.evaluate((pasted) => {
    const data = new DataTransfer();
    data.setData('text/plain', pasted);
    const content = document.getElementById('editor').shadowRoot.querySelector('.cm-content');
    content.dispatchEvent(new ClipboardEvent('paste', { clipboardData: data, bubbles: true, cancelable: true }));
  }, text);
  await settle();
}

const scripts = '#<script>document.title = "run"</script>\n<img src=x onerror="document.title = \'run\'">\n' +
  '#model=<iframe src="javascript:parent.document.title=1">\nPOST <svg onload="document.title=1">\n';

test('every line has the words of the reader, and its role as a colour', async () => {
  await examined(tab, Buffer.from(water));
  assert.deepEqual((await inEditor('.words .cm-gutterElement')).slice(1).filter(Boolean), ['command 1',
    'charge and multiplicity', 'atom 1', 'atom 2', 'atom 3', 'bond constraint', 'angle constraint']);
  assert.deepEqual(await inEditor('.cm-line.role-command'), ['#opt']);
  await go(3);
  assert.equal(await textOf('line'), 'Line 3: charge and multiplicity');
});

test('pasted scripts are shown as text and never run', async () => {
  await examined(tab, Buffer.from(''));
  await paste(scripts);
  assert.equal(await tab.title(), 'Try it');
  assert.deepEqual(await inEditor('.cm-line'), scripts.split('\n'));
  for (const id of ['tab-difference', 'tab-document', 'tab-canonical']) await tab.click(`#${id}`);
  const made = await tab.evaluate(() => {
    const roots = [document, ...['editor', 'canonical', 'difference', 'document'].map((id) => document.getElementById(id).shadowRoot)];
    return roots.flatMap((root) => [...root.querySelectorAll('iframe, svg, main script, img[onerror]')]).length;
  });
  assert.equal(made, 0);
  assert.equal(await tab.title(), 'Try it');
});

test('the policy refuses scripts in the page, functions from text and other hosts', async () => {
  const refused = await tab.evaluate(async () => {
    const broken = [];
    document.addEventListener('securitypolicyviolation', (event) => broken.push(event.effectiveDirective));
    const attempt = document.createElement('script');
    attempt.textContent = 'document.title = "run"';
    document.body.append(attempt);
    const image = new Image();
    image.setAttribute('onerror', 'document.title = "run"');
    image.src = 'https://example.org/none.png';
    await fetch('https://example.org/').catch(() => broken.push('fetch failed'));
    // What a debugger evaluates may make functions, but not what a timer calls.
    await new Promise((resolve) => setTimeout(resolve, 100));
    try { new Function('document.title = "run"')(); } catch { broken.push('no function'); }
    return { broken: [...new Set(broken)].sort(), title: document.title };
  });
  assert.deepEqual(refused, { title: 'Try it',
    broken: ['connect-src', 'fetch failed', 'img-src', 'no function', 'script-src-attr', 'script-src-elem'] });
  assert.ok(tab.problems.length > 0, 'the console tells of it');
  tab.problems.length = 0;
});

test('line ends and bytes that are no UTF-8 stay as they are', async () => {
  for (const bytes of [Buffer.from('#opt\r\n\r\n0 1\r\n'), Buffer.from([0xef, 0xbb, 0xbf, 0x23, 0x61]), Buffer.from([0x23, 0xff, 0xc3, 0x28, 0])]) {
    const { read } = await examined(tab, bytes);
    assert.deepEqual(Buffer.from(read, 'base64'), bytes);
  }
});

test('pasted line ends of DOS stay, too', async () => {
  await examined(tab, Buffer.from(''));
  await paste('#opt\r\n0 1\r\n');
  assert.deepEqual(await tab.evaluate(() => globalThis.tryIt.editor.text), '#opt\r\n0 1\r\n');
});

test('a slash is a letter of the text and does not open the search', async () => {
  await examined(tab, Buffer.from(''));
  await tab.focus('#editor >>> .cm-content');
  await tab.keyboard.type('#a/b');
  assert.equal(await tab.evaluate(() => globalThis.tryIt.editor.text), '#a/b');
  assert.equal(await tab.$('dialog.search[open]'), null);
});

test('a finding leads to its place and a button fixes it', async () => {
  await examined(tab, Buffer.from('#opt\n\n0 1\nO 0 0 0,1\nH 0 0 1\n'));
  assert.match(await textOf('problems'), /QL104/);
  await tab.click('#problems .place');
  assert.match(await textOf('line'), /^Line 4: /);
  await tab.evaluate(() => [...document.querySelectorAll('#problems button')].find((one) => one.textContent === 'Fix').click());
  await settle();
  assert.equal(await tab.evaluate(() => globalThis.tryIt.editor.text), '#opt\n\n0 1\nO 0 0 0.1\nH 0 0 1\n');
});

/** Puts the cursor, clicks a button, and types at the end before the click, after it, or not at all. */
async function fixed(button, cursor, typing = {}) {
  await tab.evaluate((name, at, { before = '', after = '' }) => {
    const { view } = globalThis.tryIt.editor;
    const type = (insert) => insert && view.dispatch({ changes: { from: view.state.doc.length, insert } });
    view.dispatch({ selection: { anchor: at } });
    type(before);
    [...document.querySelectorAll('button')].find((one) => one.textContent === name).click();
    type(after);
  }, button, cursor, typing);
  await tab.waitForFunction(() => document.getElementById('told').textContent !== '');
  await settle();
  return tab.evaluate(() => {
    const { editor } = globalThis.tryIt;
    return { text: editor.text, cursor: editor.view.state.selection.main.head, told: document.getElementById('told').textContent };
  });
}

const NOT_FIXED = 'Nothing is fixed: the text has changed since then, and is read again.';
const FIXED = 'Fixed. Ctrl+Z in the text takes it back.';
const COMMAS = '#opt\n# å🧪\n\n0 1\nO 0 0 0,12\nH 0 0 1,5\n';
const WITH_POINTS = COMMAS.replaceAll(',', '.');
const AT_THE_H = COMMAS.indexOf('H');

for (const [name, button, typing, expected] of [
  ['a fix changes only its places, and the cursor stays', 'Fix', {}, [WITH_POINTS, FIXED]],
  ['a fix leaves what was typed before it', 'Fix', { before: '#a' }, [`${COMMAS}#a`, NOT_FIXED]],
  ['all fixes change only their places, and the cursor stays', 'Make all safe fixes', {},
    [WITH_POINTS, FIXED]],
  ['all fixes leave what is typed while they are looked for', 'Make all safe fixes', { after: '#a' },
    [`${COMMAS}#a`, NOT_FIXED]],
]) {
  test(name, async () => {
    await examined(tab, Buffer.from(COMMAS));
    await tab.evaluate(() => { document.getElementById('told').textContent = ''; });
    const [text, told] = expected;
    assert.deepEqual(await fixed(button, AT_THE_H, typing), { text, cursor: AT_THE_H, told });
  });
}

test('all fixes make one with more edits than the page lists', async () => {
  const text = `#opt\n0 1\nO 0 0 0\n${'H 0 0 1,5\n'.repeat(1001)}`;
  await examined(tab, Buffer.from(text));
  assert.deepEqual(await tab.$$eval('#problems li', (all) => all.map((row) => row.querySelectorAll('button').length)), [1],
    'one finding, with a way to its place and no fix');
  assert.equal(await makeAllFixes(tab), FIXED);
  assert.equal(await tab.evaluate(() => globalThis.tryIt.editor.text), text.replaceAll(',', '.'));
});

test('all fixes say that no finding has a safe one', async () => {
  const text = '#opt freq\n0 1\nHe 0 0 0\n';
  await examined(tab, Buffer.from(text));
  assert.equal(await makeAllFixes(tab), 'Nothing is fixed: no finding has a safe fix.');
  assert.equal(await tab.evaluate(() => globalThis.tryIt.editor.text), text);
});

for (const [about, text, expected] of [
  ['without findings', '#opt\n0 1\nHe 0 0 0\n', true],
  ['with a finding', '#opt freq\n0 1\nHe 0 0 0\n', false],
]) {
  test(`in a text ${about}, the button for all fixes is ${expected ? 'off' : 'on'}`, async () => {
    await examined(tab, Buffer.from(text));
    assert.equal(await tab.$eval('#fix-all', (button) => button.disabled), expected);
  });
}

test('a fix of an earlier text does nothing', async () => {
  await examined(tab, Buffer.from(COMMAS));
  const text = await tab.evaluate(async () => {
    const { editor, settled } = globalThis.tryIt;
    const fix = [...document.querySelectorAll('#problems button')].find((one) => one.textContent === 'Fix');
    editor.view.dispatch({ changes: { from: 0, insert: '#sp\n' } });
    await settled();
    fix.click();
    return editor.text;
  });
  assert.equal(text, `#sp\n${COMMAS}`);
  assert.equal(await textOf('told'), NOT_FIXED);
});

for (const [text, other, expected] of [
  ['a\nb\n', 'a\nb\n', []],
  ['ab\nab\naa\n', 'ab\nb\naaa\n', [{ from: 3, to: 4, insert: '' }, { from: 8, to: 8, insert: 'a' }]],
  ['a\nb\nc\n', 'a\nc\n', [{ from: 2, to: 4, insert: '' }]],
  ['a\rb', 'a\nb', [{ from: 1, to: 2, insert: '\n' }]],
]) {
  test(`of ${JSON.stringify(text)}, only what differs is changed to ${JSON.stringify(other)}`, () =>
    assert.deepEqual(changesBetween(text, other), expected));
}

/** Changes the text; the message to the reader is without it, so that the reader fails. */
const changeAndFail = () => tab.evaluate(() => {
  const send = Worker.prototype.postMessage;
  Worker.prototype.postMessage = function postMessage(message) {
    Worker.prototype.postMessage = send;
    send.call(this, { ...message, bytes: null });
  };
  globalThis.tryIt.editor.view.dispatch({ changes: { from: 0, insert: '#sp\n' } });
});

test('the page says that the reader has failed, and reads the next text', async () => {
  await examined(tab, Buffer.from(water));
  await changeAndFail();
  await settle();
  assert.match(await textOf('failure'), /^The reader has failed \(TypeError: .*\)\. What is shown may be about an earlier text\.$/);
  await examined(tab, Buffer.from('#freq\n'));
  assert.equal(await textOf('failure'), '');
  assert.equal(await tab.evaluate(() => globalThis.tryIt.shown().canonicalText), '#freq\n');
});

for (const [name, breakReader] of [
  ['is no WebAssembly', () => {
    const send = Worker.prototype.postMessage;
    Worker.prototype.postMessage = function postMessage(message) {
      send.call(this, message.wasm ? { wasm: new Uint8Array(4) } : message);
    };
  }],
  ['is no script', () => {
    const made = URL.createObjectURL;
    URL.createObjectURL = () => made.call(URL, new Blob(['(']));
  }],
]) {
  test(`the page says that a reader that ${name} does not start`, async () => {
    const other = await browser.newPage();
    await other.evaluateOnNewDocument(breakReader);
    await other.goto(address);
    await other.waitForFunction(() => document.getElementById('failure').textContent !== '', { timeout: 30000 });
    assert.match(await other.$eval('#failure', (failure) => failure.textContent), /^The reader has failed \(.+\)\./);
    await other.close();
  });
}

test('of findings without number, the first are shown and the others counted', async () => {
  await examined(tab, Buffer.from(`#sp\n\n0 1\nH 0 0 0\n${'B 9 9\n'.repeat(1003)}`));
  const rows = await tab.$$eval('#problems li', (all) => all.slice(200).map((row) => row.textContent));
  assert.deepEqual({ rows, count: await textOf('count') }, {
    rows: ['and 1801 more', 'and 3 more of QL304', 'and 1006 more of QL305'], count: '3010 in all.' });
});

test('the canonical text marks what formatting adds', async () => {
  await examined(tab, Buffer.from('#opt\n0 1\nhe 0 0 0\n'));
  const marked = await tab.evaluate(() =>
    [...document.getElementById('canonical').shadowRoot.querySelectorAll('.cm-line.added')].map((line) => line.textContent));
  assert.deepEqual(marked, ['', 'He       0.000000      0.000000      0.000000']);
  assert.match(await textOf('difference-note'), /removes 1 and adds 2 lines/);
});

test('the page says what a canonical text would lose', async () => {
  await examined(tab, Buffer.from('#sp\nXYZ a.xyz\nXYZ\n'));
  assert.match(await textOf('losses'), /line 3 would be left out: 'XYZ'/);
});

test('a link holds the text', async () => {
  await examined(tab, Buffer.from('#opt\r\n\xff', 'latin1'));
  await tab.click('#copy-link');
  await tab.waitForFunction(() => location.hash !== '');
  const other = await openPage(browser, await tab.evaluate(() => location.hash));
  assert.deepEqual(await other.evaluate(() => Array.from(globalThis.tryIt.shown().bytes)), [...Buffer.from('#opt\r\n\xff', 'latin1')]);
  await other.close();
  const broken = await openPage(browser, '#text=AAAA!');
  assert.match(await broken.$eval('#told', (element) => element.textContent), /no text that can be read/);
  await broken.close();
});

test('an example can be chosen', async () => {
  const name = 'hydrogen_peroxide_scan.qin';
  await tab.select('#example', name);
  await settle();
  assert.match(await tab.evaluate(() => globalThis.tryIt.editor.text), /^#/);
  assert.deepEqual((await drawn()).atoms, 4);
});

test('atoms, constraints and scans are drawn, and the atom of the line is marked', async () => {
  await examined(tab, Buffer.from(`${water}C 1\nS 1 3 1.5 10\n`));
  assert.deepEqual(await drawn(), { atoms: 3, shapes: 5 });
  const marked = () => tab.evaluate(() => globalThis.tryIt.picture.view.marked());
  await go(5);
  assert.deepEqual(await marked(), [1]);
  await go(8);
  assert.deepEqual(await marked(), [1, 0, 2]);
  await go(10);
  assert.deepEqual(await marked(), [0, 2]);
  await go(1);
  assert.deepEqual(await marked(), []);
});

test('an atom of the picture leads to its line', async () => {
  await examined(tab, Buffer.from(water));
  await drawn();
  await tab.focus('#molecule');
  await tab.keyboard.press('PageDown');
  assert.match(await textOf('line'), /^Line 4: atom 1/);
  await tab.keyboard.press('PageDown');
  assert.match(await textOf('line'), /^Line 5: atom 2/);
});

test('a click on an atom of the picture leads to its line and marks it', async () => {
  await examined(tab, Buffer.from('#opt\n\n0 1\nO 0 0 0\nC -1.2 0 0\nO -2.4 0 0\n'));
  await drawn();
  await tab.$eval('#molecule', (picture) => picture.scrollIntoView({ block: 'center' }));
  for (const number of [2, 0, 1]) {
    const { x, y } = await tab.evaluate((atom) => globalThis.tryIt.picture.view.placeOf(atom), number);
    await tab.mouse.click(x, y);
    assert.match(await textOf('line'), new RegExp(`^Line ${number + 4}: atom ${number + 1}`));
    assert.deepEqual(await tab.evaluate(() => globalThis.tryIt.picture.view.marked()), [number]);
  }
});

test('a file that is dropped on the page is shown byte for byte', async () => {
  await examined(tab, Buffer.from(water));
  const folder = mkdtempSync(join(tmpdir(), 'dropped'));
  const path = join(folder, 'job.qin');
  writeFileSync(path, Buffer.from('#dropped\r\n\xff\0\n', 'latin1'));
  const { x, y } = await tab.$eval('#editor', (editor) => editor.getBoundingClientRect().toJSON());
  const page = await tab.createCDPSession();
  const drag = (type) => page.send('Input.dispatchDragEvent',
    { type, x: x + 50, y: y + 50, data: { items: [], files: [path], dragOperationsMask: 1 } });
  const isTarget = () => tab.$eval('#text', (target) => target.classList.contains('is-target'));
  await drag('dragEnter');
  await drag('dragOver');
  assert.equal(await isTarget(), true);
  await drag('drop');
  await tab.waitForFunction(() => globalThis.tryIt.editor.text.startsWith('#dropped'));
  await settle();
  const read = await tab.evaluate(() => Array.from(globalThis.tryIt.shown().bytes));
  assert.deepEqual(Buffer.from(read), readFileSync(path));
  assert.equal(await isTarget(), false);
  await page.detach();
  rmSync(folder, { recursive: true });
});

test('coordinates in other files, and those that are not finite, are told', async () => {
  await examined(tab, Buffer.from('#sp\nXYZ water.xyz\n'));
  await drawn();
  assert.match(await textOf('molecule-note'), /No atoms to draw. The coordinates are in water.xyz/);
  await examined(tab, Buffer.from('#sp\n0 1\nH 0 0 nan\nH 0 0 1\n'));
  await drawn();
  assert.match(await textOf('molecule-note'), /1 atoms. 1 atoms? /);
});

test('a keyboard reaches everything', async () => {
  await examined(tab, Buffer.from('#opt\n\n0 1\nO 0 0 0,1\n'));
  const reached = new Set();
  await tab.focus('body');
  for (let i = 0; i < 60; ++i) {
    await tab.keyboard.press('Tab');
    reached.add(await tab.evaluate(() => document.activeElement.id || document.activeElement.closest('[id]')?.id));
  }
  for (const id of ['example', 'file', 'copy-link', 'editor', 'fix-all', 'problems', 'molecule', 'tab-canonical', 'canonical'])
    assert.ok(reached.has(id), `${id} is not among ${[...reached]}`);
  await tab.focus('#tab-canonical');
  await tab.keyboard.press('ArrowRight');
  assert.equal(await tab.$eval('#difference-panel', (panel) => panel.hidden), false);
});

test('axe-core finds nothing, in light and dark, wide and narrow', async () => {
  await examined(tab, Buffer.from(`${water}#late\n`));
  await tab.evaluate(axe);
  for (const [width, value] of [[1400, 'light'], [420, 'dark'], [1400, 'dark'], [420, 'light']]) {
    await tab.setViewport({ width, height: 900 });
    await tab.emulateMediaFeatures([{ name: 'prefers-color-scheme', value }]);
    const { violations } = await tab.evaluate(() => globalThis.axe.run({ preload: false }));
    assert.deepEqual(violations.map(({ id, nodes }) => `${width} ${value} ${id}: ${nodes.map(({ html }) => html.slice(0, 150))}`), []);
    const { scrollWidth, clientWidth } = await tab.evaluate(() => document.documentElement);
    assert.ok(scrollWidth === clientWidth, `${width} ${value}: ${scrollWidth} wide`);
  }
});
