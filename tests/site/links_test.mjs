// Every link within the site leads to a page that is there, and to a heading or a part that is on it.

import assert from 'node:assert/strict';
import { existsSync, readFileSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';

import { pages, site } from './browser.mjs';

function brokenLinks(contents, isThere) {
  const ids = new Map([...contents].map(([page, html]) => [page, new Set([...html.matchAll(/ id="([^"]+)"/g)].map((found) => found[1]))]));
  const isBroken = (page, address) => {
    const [path, anchor] = address.split('#');
    const target = path || page;
    if (!contents.has(target)) return !isThere(target) || anchor !== undefined;
    return anchor !== undefined && !ids.get(target).has(decodeURIComponent(anchor));
  };
  return [...contents].flatMap(([page, html]) =>
    [...html.matchAll(/ (?:href|src)="([^"]*)"/g)].map((found) => found[1])
      .filter((address) => !/^(https?|mailto|data):/.test(address) && isBroken(page, address))
      .map((address) => `${page}: ${address}`));
}

test('links that lead nowhere are found', () => {
  const contents = new Map([
    ['a.html', '<a href="b.html"> <a href="b.html#there"> <a href="b.html#none"> <a href="#none"> <a href="none.html"> <a href="https://example.org/">'],
    ['b.html', '<p id="there"><a href="#there"><img src="none.svg"><a href="data.json"> <a href="">'],
  ]);
  assert.deepEqual(brokenLinks(contents, (path) => path === 'data.json'),
    ['a.html: b.html#none', 'a.html: #none', 'a.html: none.html', 'b.html: none.svg']);
});

test('no link leads nowhere', () => {
  const contents = new Map(pages.map((page) => [page, readFileSync(join(site, page), 'utf8')]));
  const isThere = (path) => existsSync(join(site, path)) && statSync(join(site, path)).isFile();
  assert.ok(contents.size > 100);
  assert.deepEqual(brokenLinks(contents, isThere), []);
});

test('no page loads a part from another host', () => {
  const foreign = pages.filter((page) => /<(link|script|img|iframe)[^>]*(href|src)="(https?:)?\/\//.test(readFileSync(join(site, page), 'utf8')));
  assert.deepEqual(foreign, []);
});
