// Opens pages of the site in a browser, and notes what goes wrong on them.

import { readdirSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';

export const site = process.env.KELP_QUILL_INP_SITE;

export const pages = readdirSync(site).filter((name) => name.endsWith('.html')).sort();

export function addressOf(page) {
  const [file, anchor] = page.split('#');
  return pathToFileURL(join(site, file)).href + (anchor ? `#${anchor}` : '');
}

export function startBrowser() {
  return puppeteer.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
      '--disable-component-update', '--disable-sync'],
  });
}

/** A tab whose `problems` are errors on the console, exceptions and parts that could not be loaded. */
export async function openTab(browser) {
  const tab = await browser.newPage();
  tab.problems = [];
  tab.on('console', (message) => {
    // What the browser says about drawing without a graphics card is not about the page.
    if (/WebGL/.test(message.text())) return;
    if (['error', 'warn'].includes(message.type())) tab.problems.push(`console: ${message.text()}`);
  });
  tab.on('pageerror', (error) => tab.problems.push(`exception: ${error.message}`));
  tab.on('requestfailed', (request) => tab.problems.push(`not loaded: ${request.url()}`));
  tab.on('request', (request) => {
    if (/^https?:/.test(request.url())) tab.problems.push(`from another host: ${request.url()}`);
  });
  return tab;
}

export async function setLook(tab, width, scheme) {
  await tab.setViewport({ width, height: 900 });
  await tab.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
}
