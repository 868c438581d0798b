// Opens "Try it" in a browser with a picture of molecules, and asks the program what it says of a text.

import { execFile } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';

const { KELP_QUILL_INP_SITE: site, KELP_QUILL_INP_PROGRAM: program, KELP_QUILL_INP_TEXTS: texts } = process.env;

export const address = pathToFileURL(join(site, 'try-it.html')).href;

const IN_SOFTWARE = ['--use-angle=swiftshader', '--enable-unsafe-swiftshader'];
const WITHOUT_WEBGL = ['--disable-gpu', '--disable-software-rasterizer'];

/** A browser that draws in software, so that it needs no graphics card; or one without WebGL. */
export function startBrowser(hasPictures = true) {
  return puppeteer.launch({
    executablePath: '/usr/bin/chromium',
    protocolTimeout: 60000,
    args: ['--no-sandbox', ...(hasPictures ? IN_SOFTWARE : WITHOUT_WEBGL), '--disable-quic', '--no-first-run',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
}

/** A tab with the page, ready; `problems` are errors on the console, exceptions and what is not loaded. */
export async function openPage(browser, fragment = '') {
  const tab = await browser.newPage();
  tab.problems = [];
  tab.on('console', (message) => message.type() === 'error' && tab.problems.push(`console: ${message.text()}`));
  tab.on('pageerror', (error) => tab.problems.push(`exception: ${error.message}`));
  tab.on('requestfailed', (request) => tab.problems.push(`not loaded: ${request.url()}`));
  tab.on('request', (request) => /^https?:/.test(request.url()) && tab.problems.push(`host: ${request.url()}`));
  await tab.setViewport({ width: 1400, height: 900 });
  await tab.goto(address + fragment);
  await tab.waitForFunction(() => globalThis.tryIt?.shown().answers > 0, { timeout: 60000 });
  return tab;
}

/** Shows bytes on the page as an opened file does, and returns what the page then shows. */
export function examined(tab, bytes) {
  return tab.evaluate(async (digits) => {
    const fromDigits = Uint8Array.from(atob(digits), (character) => character.charCodeAt(0));
    const digitsOf = (all) => btoa(Array.from(all, (byte) => String.fromCharCode(byte)).join(''));
    globalThis.tryIt.showBytes(fromDigits);
    await globalThis.tryIt.settled();
    const { account, findings, more, canonical, difference, bytes: read } = globalThis.tryIt.shown();
    const document = await globalThis.tryIt.document();
    return { account, findings, more, document, canonical: digitsOf(canonical), difference: digitsOf(difference),
      read: digitsOf(read) };
  }, Buffer.from(bytes).toString('base64'));
}

/** Makes all safe fixes, and returns what the page says about that. */
export function makeAllFixes(tab) {
  return tab.evaluate(async () => {
    const told = document.getElementById('told');
    told.textContent = '';
    const isTold = new Promise((resolve) => {
      new MutationObserver(resolve).observe(told, { childList: true });
    });
    document.getElementById('fix-all').click();
    await isTold;
    await globalThis.tryIt.settled();
    return told.textContent;
  });
}

/** What tests do and see on the page; `tabOf()` is its tab. */
export function actionsOn(tabOf) {
  return {
    textOf: (id) => tabOf().$eval(`#${id}`, (element) => element.textContent),
    inEditor: (selector) => tabOf().evaluate((wanted) =>
      [...document.getElementById('editor').shadowRoot.querySelectorAll(wanted)].map((element) => element.textContent), selector),
    go: (line) => tabOf().evaluate(async (number) => {
      globalThis.tryIt.editor.go(number);
      await new Promise(requestAnimationFrame);
    }, line),
    settle: () => tabOf().evaluate(() => globalThis.tryIt.settled()),
  };
}

/** Returns what the program prints about a file named "input" with these bytes. */
export class Program {
  #folder = mkdtempSync(join(tmpdir(), 'try_it'));

  close() {
    rmSync(this.#folder, { recursive: true });
  }

  write(bytes) {
    writeFileSync(join(this.#folder, 'input'), bytes);
  }

  read() {
    return readFileSync(join(this.#folder, 'input'));
  }

  /** The output; the exit code 1 says that something was found. Several may run at once. */
  run(...args) {
    const options = { cwd: this.#folder, encoding: 'buffer', maxBuffer: 1 << 26 };
    return new Promise((resolve, reject) => {
      execFile(program, [...args, 'input'], options, (error, stdout, stderr) => {
        if (error && error.code !== 1) reject(new Error(`${args}: ${error.message} ${stderr}`));
        else resolve(stdout);
      });
    });
  }
}

/** All texts that the page is compared with the program on: [name, bytes]. */
export function allTexts() {
  return texts.split(':').flatMap((folder) => readdirSync(folder, { withFileTypes: true })
    .filter((entry) => entry.isFile())
    .map(({ name }) => [`${folder}/${name}`, readFileSync(join(folder, name))]));
}
