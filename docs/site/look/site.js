// What the pages of the site do: the list of pages on narrow screens, contents, copying of code, search.
(() => {
  'use strict';

  const wide = window.matchMedia('(min-width: 75rem)');

  /** Contents are open where they have a place beside the text. */
  function foldContents() {
    const contents = document.querySelector('details.contents');
    if (contents) contents.open = wide.matches;
  }

  function openPages() {
    const button = document.querySelector('.open-pages');
    button.addEventListener('click', () => {
      const isOpen = document.getElementById('pages').classList.toggle('open');
      button.setAttribute('aria-expanded', String(isOpen));
    });
  }

  /** Of a session in a shell, the commands are copied, without prompts and answers. */
  function codeOf(block) {
    const text = block.querySelector('code').textContent;
    if (block.dataset.language !== 'console') return `${text}\n`;
    const commands = text.split('\n').filter((line) => line.startsWith('$ '));
    return commands.map((line) => `${line.slice(2)}\n`).join('');
  }

  async function copy(text) {
    if (navigator.clipboard) return navigator.clipboard.writeText(text);
    const area = document.createElement('textarea');
    area.value = text;
    document.body.append(area);
    area.select();
    document.execCommand('copy');
    area.remove();
  }

  function addCopyButton(block) {
    const box = document.createElement('div');
    box.className = 'code';
    block.replaceWith(box);
    const button = document.createElement('button');
    button.type = 'button';
    button.className = 'copy';
    button.textContent = 'Copy';
    button.addEventListener('click', async () => {
      try {
        await copy(codeOf(block));
        button.textContent = 'Copied';
      } catch {
        button.textContent = 'Not copied';
      }
      setTimeout(() => { button.textContent = 'Copy'; }, 1500);
    });
    box.append(block, button);
  }

  /** What scrolls by itself can be reached by the keyboard. */
  function makeScrollable() {
    for (const box of document.querySelectorAll('pre, .wide')) {
      if (box.scrollWidth > box.clientWidth) box.tabIndex = 0;
      else box.removeAttribute('tabindex');
    }
  }

  function makeTabs(box) {
    const tabs = [...box.querySelectorAll('[role=tab]')];
    const choose = (chosen) => {
      for (const tab of tabs) {
        tab.setAttribute('aria-selected', String(tab === chosen));
        tab.tabIndex = tab === chosen ? 0 : -1;
        document.getElementById(tab.getAttribute('aria-controls')).hidden = tab !== chosen;
      }
    };
    box.addEventListener('keydown', ({ key }) => {
      const step = { ArrowRight: 1, ArrowLeft: -1 }[key];
      const at = tabs.indexOf(document.activeElement);
      if (!step || at < 0) return;
      const next = tabs[(at + step + tabs.length) % tabs.length];
      choose(next);
      next.focus();
    });
    for (const tab of tabs) tab.addEventListener('click', () => choose(tab));
    choose(tabs[0]);
  }

  function loadScript(name) {
    return new Promise((resolve, reject) => {
      const script = document.createElement('script');
      script.src = name;
      script.onload = resolve;
      script.onerror = reject;
      document.head.append(script);
    });
  }

  async function makeIndex() {
    await loadScript('minisearch.js');
    await loadScript('search-entries.js');
    const index = new window.MiniSearch({
      fields: ['heading', 'page', 'text'],
      storeFields: ['heading', 'page', 'text', 'href'],
      searchOptions: { boost: { heading: 4, page: 2 }, prefix: true, fuzzy: (word) => (word.length > 4 ? 0.2 : 0), combineWith: 'AND' },
    });
    index.addAll(window.searchEntries);
    return index;
  }

  /** The part of a text around the first of the words. */
  function excerpt(text, words) {
    const at = Math.max(0, ...words.map((word) => text.toLowerCase().indexOf(word)).filter((place) => place >= 0).slice(0, 1));
    const start = at > 60 ? text.indexOf(' ', at - 60) + 1 : 0;
    return `${start > 0 ? '… ' : ''}${text.slice(start, start + 150)}${text.length > start + 150 ? ' …' : ''}`;
  }

  function resultItem({ href, heading, page, text }, words) {
    const item = document.createElement('li');
    const link = document.createElement('a');
    link.href = href;
    const title = document.createElement('strong');
    title.textContent = heading === page ? page : `${page}: ${heading}`;
    const quote = document.createElement('span');
    quote.textContent = excerpt(text, words);
    link.append(title, quote);
    item.append(link);
    return item;
  }

  function makeDialog() {
    const dialog = document.createElement('dialog');
    dialog.className = 'search';
    dialog.setAttribute('aria-label', 'Search');
    dialog.innerHTML = '<form method="dialog"><input type="search" aria-label="Words to search for" ' +
      'placeholder="Words to search for" autocomplete="off"><button>Close</button></form>' +
      '<p class="count" role="status"></p><ol class="results"></ol>';
    document.body.append(dialog);
    return dialog;
  }

  function addSearch() {
    const dialog = makeDialog();
    const input = dialog.querySelector('input');
    const list = dialog.querySelector('.results');
    const count = dialog.querySelector('.count');
    let index;

    const show = async () => {
      index = index ?? makeIndex();
      const words = input.value.toLowerCase().split(/\s+/).filter(Boolean);
      const found = (await index).search(input.value);
      count.textContent = words.length ? `${found.length} found` : '';
      list.replaceChildren(...found.slice(0, 20).map((entry) => resultItem(entry, words)));
    };
    const open = () => {
      if (!dialog.open) dialog.showModal();
      input.select();
      show();
    };
    input.addEventListener('input', show);
    input.addEventListener('keydown', (event) => {
      if (event.key !== 'Enter') return;
      event.preventDefault();
      list.querySelector('a')?.click();
    });
    // A result on this page moves it under the dialog.
    list.addEventListener('click', () => dialog.close());
    document.querySelector('.open-search').addEventListener('click', open);
    document.addEventListener('keydown', (event) => {
      const isTyping = event.target.closest('input, textarea, select, [contenteditable]');
      if (event.key !== '/' || isTyping || event.ctrlKey || event.metaKey || event.altKey) return;
      event.preventDefault();
      open();
    });
  }

  foldContents();
  wide.addEventListener('change', foldContents);
  openPages();
  document.querySelectorAll('.text pre:not(.declaration)').forEach(addCopyButton);
  document.querySelectorAll('.tabs').forEach(makeTabs);
  makeScrollable();
  window.addEventListener('resize', makeScrollable);
  addSearch();
})();
