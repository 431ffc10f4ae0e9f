#include "viewer/web/page_script.h"

namespace viewer {

const char kPageScript[] = R"js(
(() => {
  const post = message =>
      window.webkit.messageHandlers.viewer.postMessage(message);

  // The name that the client passes where a fragment would not reach the page,
  // else the fragment itself.
  const anchorName = () => {
    const named = /[?&]nameAnchor=([^&]*)/.exec(location.search);
    const raw = location.hash ? location.hash.slice(1) : named ? named[1] : '';
    try { return decodeURIComponent(raw); } catch { return raw; }
  };
  const anchorElement = name =>
      document.getElementById(name) || document.getElementsByName(name)[0];

  // An anchor that has no size, or is not shown, has no place on the page: the
  // next element that has one is what the person looks for.
  const hasPlace = element => [...element.getClientRects()].some(
      rect => rect.width > 0 && rect.height > 0);
  const shownFrom = element => {
    const walker = document.createTreeWalker(
        document.body, NodeFilter.SHOW_ELEMENT);
    walker.currentNode = element;
    for (let node = element; node; node = walker.nextNode())
      if (hasPlace(node)) return node;
    return element;
  };

  let userHasScrolled = false;
  for (const type of ['wheel', 'keydown', 'touchstart', 'pointerdown'])
    addEventListener(type, () => userHasScrolled = true,
                     {capture: true, passive: true});

  // How far down a header that stays when the page scrolls hides the element;
  // 0 when nothing does. A header's contents may be larger than its own box.
  const coveredTo = element => {
    const {left, right, top} = element.getBoundingClientRect();
    let node = document.elementFromPoint((left + right) / 2, top + 1);
    for (let bottom = 0; node && !node.contains(element);
         node = node.parentElement) {
      bottom = Math.max(bottom, node.getBoundingClientRect().bottom);
      if (/fixed|sticky/.test(getComputedStyle(node).position))
        return bottom > top && bottom < innerHeight / 2 ? bottom : 0;
    }
    return 0;
  };
  const scrollTo = element => {
    element.scrollIntoView({block: 'start', behavior: 'instant'});
    const bottom = coveredTo(element);
    if (bottom) scrollBy({top: element.getBoundingClientRect().top - bottom,
                          behavior: 'instant'});
  };

  const scrollToAnchor = () => {
    const name = anchorName();
    const element = name && anchorElement(name);
    if (!element) return {anchor: name, found: false, top: 0};
    const shown = shownFrom(element);
    if (!userHasScrolled) scrollTo(shown);
    return {anchor: name, found: true, top: shown.getBoundingClientRect().top};
  };

  const report = (event, details) => requestAnimationFrame(() => {
    requestAnimationFrame(() => post({
      event, title: document.title, height: innerHeight, ...details}));
  });

  const painted = () => report('painted', scrollToAnchor());
  if (document.readyState === 'loading')
    addEventListener('DOMContentLoaded', painted, {once: true});
  else
    painted();
  // Scripts and images have moved the anchor meanwhile.
  const settled = () => report('settled', {
    ...scrollToAnchor(),
    text: (document.body?.innerText ?? '').slice(0, 65536)});
  if (document.readyState === 'complete') settled();
  else addEventListener('load', () => setTimeout(settled), {once: true});
  addEventListener('hashchange', () => {
    userHasScrolled = false;
    report('settled', scrollToAnchor());
  });

  const plain = text => text.normalize('NFD').replace(/\p{M}/gu, '')
      .toLowerCase();

  // Each letter's own position: removing accents changes lengths.
  const ranges = (node, words) => {
    const letters = [...node.data];
    const starts = [];
    let folded = '', at = 0;
    for (const letter of letters) {
      for (const part of plain(letter)) {
        for (let i = 0; i < part.length; ++i) starts.push(at);
        folded += part;
      }
      at += letter.length;
    }
    starts.push(at);
    const found = [];
    for (const word of words)
      for (let i = folded.indexOf(word); i >= 0;
           i = folded.indexOf(word, i + word.length)) {
        if (i && /[\p{L}\p{N}]/u.test(folded[i - 1])) continue;
        const range = new Range();
        range.setStart(node, starts[i]);
        range.setEnd(node, starts[i + word.length]);
        found.push(range);
      }
    return found;
  };

  globalThis.velmoHighlight = words => {
    CSS.highlights.delete('velmo-hit');
    words = words.map(plain).filter(word => word);
    if (!words.length || !document.body) return 0;
    const walker = document.createTreeWalker(document.body,
                                             NodeFilter.SHOW_TEXT);
    const found = [];
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
      const parent = node.parentElement;
      if (!parent || parent.closest(
              'script,style,header,footer,nav,aside,noscript,template'))
        continue;
      if (found.length < 1000) found.push(...ranges(node, words));
    }
    const shown = found.filter(range => range.getClientRects().length);
    CSS.highlights.set('velmo-hit', new Highlight(...shown));
    if (shown.length && !anchorName() && !userHasScrolled)
      shown[0].startContainer.parentElement.scrollIntoView({block: 'center'});
    return shown.length;
  };

  globalThis.velmoContents = () => {
    const lines = [];
    // Links within the page turn its own parts over; they are no contents.
    const leads = link => link && !link.getAttribute('href').startsWith('#');
    const walk = (list, depth) => {
      for (const item of list.children) {
        if (depth > 31) return;
        const link = item.querySelector(':scope > a[href], :scope > p > a[href]');
        const own = [...item.childNodes].filter(
            node => !/^(UL|OL|DL|INPUT)$/.test(node.nodeName));
        const title = own.map(node => node.textContent).join(' ')
            .replace(/\s+/g, ' ').trim();
        lines.push([depth, leads(link) ? link.href : '', title].join('\t'));
        for (const child of item.children)
          if (/^(UL|OL|DL)$/.test(child.nodeName)) walk(child, depth + 1);
      }
    };
    for (const list of document.querySelectorAll('ul, ol, dl'))
      if (!list.parentElement.closest('ul, ol, dl') &&
          [...list.querySelectorAll('a[href]')].some(leads))
        walk(list, 0);
    return lines.join('\n');
  };
})();
)js";

const char kPageStyle[] =
    "::highlight(velmo-hit) { background-color: #f9e2a7; color: #241f31; }";

}  // namespace viewer
