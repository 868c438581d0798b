// What runs out of the window or of its box on the open page; [] if nothing does.

function findOverflow() {
  const width = document.documentElement.clientWidth;
  const scrolls = (element) => ['auto', 'scroll', 'hidden'].includes(getComputedStyle(element).overflowX);
  const isInScroller = (element) => {
    for (let box = element.parentElement; box && box !== document.body; box = box.parentElement) {
      if (scrolls(box)) return true;
    }
    return false;
  };
  const wide = [...document.querySelectorAll('body *:not(.skip)')].filter((element) => {
    const { right, width: own } = element.getBoundingClientRect();
    return own > 0 && right > width + 1 && !isInScroller(element);
  });
  const found = wide.slice(0, 3).map((element) => `${element.tagName} ${element.className}: ${element.textContent.slice(0, 40)}`);
  if (document.documentElement.scrollWidth > width) found.push(`the page is ${document.documentElement.scrollWidth} wide`);
  const header = document.querySelector('header.site');
  if (header && header.getBoundingClientRect().height > 60) found.push('the header has more than one row');
  for (const part of header?.children ?? []) {
    if (part.scrollWidth > part.clientWidth + 1 && part.clientWidth > 0) found.push(`cut in the header: ${part.textContent}`);
  }
  return found;
}

export function overflowOf(tab) {
  return tab.evaluate(findOverflow);
}
