// Filters the entries while one types, walks through them with the keys, copies their lines. Keeps the filter over a
// reload. Everything that it needs stands in the page.
'use strict';
(() => {
  const byId = (id) => document.getElementById(id);
  const filter = byId('filter'), form = filter.form, list = byId('entries'), contents = byId('contents');
  const all = [...list.children];
  const links = new Map([...contents.querySelectorAll('li')].map((item) => [item.textContent, item]));
  const entries = all.filter((element) => element.matches('article')).map((element) => {
    const title = element.querySelector('h3 a');
    const name = title.textContent;
    const link = links.get(name).firstChild;
    return { element, title, name, link, key: name.toLowerCase(), kind: element.classList[0],
      text: [...element.children].map((part) => part.textContent).join('\n').toLowerCase() };
  });
  const nothing = document.createElement('p');
  nothing.textContent = 'No condition or effect has all of these words. Fewer letters find more.';
  let shown = entries, here = -1, state = '';

  // The names that begin with what was typed come first, then those that hold it, then those whose text does.
  function rankOf(entry, words) {
    if (!words.every((word) => entry.text.includes(word))) return -1;
    if (words.length === 0 || entry.key === words.join('')) return 0;
    if (!words.every((word) => entry.key.includes(word))) return 3;
    return entry.key.startsWith(words[0]) ? 1 : 2;
  }

  function mark(element, name, words) {
    const places = new Array(name.length).fill(false);
    for (const word of words)
      for (let at = name.toLowerCase().indexOf(word); at >= 0; at = name.toLowerCase().indexOf(word, at + 1))
        places.fill(true, at, at + word.length);
    const parts = [];
    for (let begin = 0, end; begin < name.length; begin = end) {
      for (end = begin + 1; end < name.length && places[end] === places[begin];) ++end;
      const part = document.createElement(places[begin] ? 'mark' : 'span');
      part.textContent = name.slice(begin, end);
      parts.push(part);
    }
    element.replaceChildren(...parts);
  }

  function update() {
    const kind = form.elements.kind.value;
    const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
    const wanted = JSON.stringify([filter.value, kind]);
    if (wanted === state) return;
    state = wanted;
    const ranked = entries.filter((entry) => !kind || entry.kind === kind)
      .map((entry) => ({ entry, rank: rankOf(entry, words) })).filter(({ rank }) => rank >= 0);
    if (words.length > 0) ranked.sort((a, b) => a.rank - b.rank);
    shown = ranked.map(({ entry }) => entry);
    const visible = new Set(shown.map((entry) => entry.element));
    if (words.length > 0 || shown.length === 0) {
      list.replaceChildren(...(shown.length > 0 ? visible : [nothing]));
    } else {
      // A category without an entry of the kind has no heading.
      const kept = all.filter((element) => element.matches('h2') || visible.has(element));
      list.replaceChildren(...kept.filter((element, i) => element.matches('article') ||
        (i + 1 < kept.length && kept[i + 1].matches('article'))));
    }
    list.classList.toggle('filtered', words.length > 0);
    for (const entry of entries) {
      entry.link.parentNode.hidden = !visible.has(entry.element);
      if (!visible.has(entry.element)) continue;
      mark(entry.title, entry.name, words);
      mark(entry.link, entry.name, words);
    }
    for (const section of contents.children) {
      const left = section.querySelectorAll('li:not([hidden])').length;
      section.hidden = left === 0;
      section.querySelector('small').textContent = left;
    }
    byId('count').value = shown.length === entries.length ? `${entries.length}` : `${shown.length} of ${entries.length}`;
    goTo(words.length > 0 && shown.length > 0 ? 0 : -1);
    if (words.length > 0) window.scrollTo(0, 0);
    try { sessionStorage.setItem('tidemark-reference', wanted); } catch { /* the page then starts unfiltered */ }
  }

  function goTo(index) {
    if (here >= 0) document.querySelector('article.here')?.classList.remove('here');
    here = index;
    if (here < 0) return;
    shown[here].element.classList.add('here');
  }

  function walk(step) {
    if (shown.length === 0) return;
    goTo(here < 0 ? 0 : Math.min(Math.max(here + step, 0), shown.length - 1));
    shown[here].element.scrollIntoView({ block: here === 0 ? 'start' : 'nearest' });
  }

  function show(name) {
    if (shown.every((entry) => entry.name !== name)) clear();
    const index = shown.findIndex((entry) => entry.name === name);
    goTo(index);
    if (index < 0) return;
    shown[index].element.scrollIntoView();
  }

  // Notes the entry in the address without the event of a link that was followed, which would come later than the next key.
  function stay(entry) {
    history.pushState(null, '', '#' + entry.name);
    entry.element.scrollIntoView();
    entry.title.focus({ preventScroll: true });
  }

  function clear() {
    filter.value = '';
    form.elements.kind.value = '';
    update();
  }

  async function copy(button) {
    const line = button.dataset.line;
    try {
      await navigator.clipboard.writeText(line);
      button.textContent = 'Copied';
    } catch {
      // Without the right to the clipboard: the line is selected, ready to be copied.
      button.previousElementSibling.textContent = line;
      getSelection().selectAllChildren(button.previousElementSibling);
      button.textContent = 'Selected';
    }
    setTimeout(() => { button.textContent = 'Copy'; }, 1500);
  }

  function openContents(open) {
    contents.classList.toggle('open', open);
    byId('show-contents').setAttribute('aria-expanded', open);
  }

  const inFilter = { ArrowDown: () => walk(1), ArrowUp: () => walk(-1),
    Enter: () => { if (here >= 0) stay(shown[here]); },
    Escape: () => { clear(); filter.blur(); } };
  const elsewhere = { '/': () => { filter.focus(); filter.select(); }, j: () => walk(1), k: () => walk(-1),
    c: () => { if (here >= 0) copy(shown[here].element.querySelector('.copy')); },
    Escape: () => { openContents(false); clear(); } };

  document.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey || event.isComposing) return;
    const action = (document.activeElement === filter ? inFilter : elsewhere)[event.key];
    if (!action) return;
    event.preventDefault();
    action();
  });
  form.addEventListener('submit', (event) => event.preventDefault());
  form.addEventListener('input', update);
  byId('show-contents').addEventListener('click', () => openContents(!contents.classList.contains('open')));
  contents.addEventListener('click', (event) => { if (event.target.closest('a')) openContents(false); });
  list.addEventListener('click', (event) => { if (event.target.matches('.copy')) copy(event.target); });
  document.querySelector('#bar h1 a').addEventListener('click', clear);
  // A link to what the filter has taken out brings everything back.
  const follow = () => {
    const target = decodeURIComponent(location.hash.slice(1));
    if (entries.some((entry) => entry.name === target)) show(target);
    else if (target && !byId(target)) { clear(); byId(target)?.scrollIntoView(); }
  };
  window.addEventListener('hashchange', follow);

  document.documentElement.classList.add('scripted');
  for (const element of [form, byId('keys'), ...document.querySelectorAll('.copy')]) element.hidden = false;
  try {
    const [text, kind] = JSON.parse(sessionStorage.getItem('tidemark-reference')) ?? ['', ''];
    filter.value = text;
    form.elements.kind.value = kind;
  } catch { /* nothing was kept */ }
  update();
  follow();
})();
