'use strict';
(() => {
  const foldable = [...document.querySelectorAll('.document, .element')];
  const unfold = document.getElementById('unfold');
  const search = document.getElementById('search');
  const results = document.getElementById('results');

  // ---- folding: everything is open until the script runs, so that the page can do without it ----

  const setAll = (open) => {
    for (const one of foldable) one.open = open;
    unfold.setAttribute('aria-pressed', String(open));
    unfold.textContent = open ? 'Fold all' : 'Unfold all';
  };
  const rootOf = (section) => section.querySelector('.element');
  const startFolded = () => {
    setAll(false);
    const sections = document.querySelectorAll('.document');
    for (const section of sections) rootOf(section).open = true;
    if (sections.length === 1) sections[0].open = true;
  };

  unfold.addEventListener('click', () => setAll(unfold.getAttribute('aria-pressed') !== 'true'));

  let foldedBeforePrint = [];
  addEventListener('beforeprint', () => {
    foldedBeforePrint = foldable.filter((one) => !one.open);
    for (const one of foldedBeforePrint) one.open = true;
  });
  addEventListener('afterprint', () => {
    for (const one of foldedBeforePrint) one.open = false;
  });

  // ---- links: whatever a link leads to is unfolded ----

  const markInNavigation = (name, anchor) => {
    for (const link of document.querySelectorAll('nav [aria-current]')) link.removeAttribute('aria-current');
    const entry = document.querySelector(`nav > [data-document="${CSS.escape(name)}"]`);
    if (!entry) return;
    entry.open = true;
    const link = entry.querySelector(`a[href="#${CSS.escape(anchor)}"]`) || entry.querySelector('a');
    link.setAttribute('aria-current', 'true');
    for (let up = link.closest('details'); up; up = up.parentElement.closest('details')) up.open = true;
    link.scrollIntoView({block: 'nearest'});
  };

  const follow = () => {
    const anchor = decodeURIComponent(location.hash.slice(1));
    const target = anchor && document.getElementById(anchor);
    if (!target || target.id === 'content') return;
    for (let up = target; up; up = up.parentElement) {
      if (up.tagName === 'DETAILS') up.open = true;
    }
    const section = target.closest('.document');
    const element = target.closest('.element') || rootOf(section);
    markInNavigation(section.id, element.id);
    target.scrollIntoView({block: target.matches('tr') ? 'center' : 'start'});
    const summary = target.matches('details') ? target.querySelector('summary') : null;
    if (summary) summary.focus({preventScroll: true});
  };
  addEventListener('hashchange', follow);
  // A link to the place that is shown already changes nothing, but may have been folded.
  document.addEventListener('click', (event) => {
    const link = event.target.closest('a[href^="#"]');
    if (link && link.hash === location.hash) follow();
    if (link && link.closest('summary') && !link.closest('nav')) event.stopPropagation();
  });

  // ---- search ----

  const words = (node) => node.textContent.replace(/\s+/g, ' ').trim();
  const places = [];
  for (const element of document.querySelectorAll('.element')) {
    const path = words(element.querySelector('.path > code'));
    places.push({
      id: element.id, name: element.dataset.name, path,
      about: words(element.querySelector('.sentence')), rank: 0,
    });
    // Children have entries of their own.
    for (const row of element.querySelectorAll('tr:has(.type)')) {
      const about = [...row.querySelectorAll('td:last-child :is(p, li)')].map(words).join(' ');
      places.push({id: row.id, name: row.dataset.name, path: `${path}/${row.dataset.name}`, about, rank: 1});
    }
  }

  const kMost = 60;
  const scoreOf = (place, query) => {
    const name = place.name.toLowerCase();
    if (name === query) return place.rank;
    if (name.startsWith(query)) return 10 + place.rank;
    if (name.includes(query)) return 20 + place.rank;
    if (query.includes('/') && place.path.toLowerCase().includes(query)) return 25 + place.rank;
    return place.about.toLowerCase().includes(query) ? 30 + place.rank : -1;
  };
  // Appends the text, with what was searched for marked.
  const append = (parent, text, query) => {
    const at = text.toLowerCase().indexOf(query);
    if (at < 0) return parent.append(text);
    const mark = document.createElement('mark');
    mark.textContent = text.slice(at, at + query.length);
    parent.append(text.slice(0, at), mark, text.slice(at + query.length));
  };
  const make = (tag, parent) => parent.appendChild(document.createElement(tag));

  let selected = -1;
  const links = () => [...results.querySelectorAll('a')];
  const select = (index) => {
    const all = links();
    if (all[selected]) all[selected].setAttribute('aria-selected', 'false');
    selected = all.length === 0 ? -1 : (index + all.length) % all.length;
    if (selected < 0) return search.removeAttribute('aria-activedescendant');
    all[selected].setAttribute('aria-selected', 'true');
    all[selected].scrollIntoView({block: 'nearest'});
    search.setAttribute('aria-activedescendant', all[selected].id);
  };
  const close = () => {
    results.hidden = true;
    search.setAttribute('aria-expanded', 'false');
    search.removeAttribute('aria-activedescendant');
  };
  const show = () => {
    const query = search.value.trim().toLowerCase();
    results.replaceChildren();
    selected = -1;
    if (query === '') return close();
    const found = places
      .map((place) => ({place, score: scoreOf(place, query)}))
      .filter((one) => one.score >= 0)
      .sort((a, b) => a.score - b.score);
    found.slice(0, kMost).forEach(({place}, index) => {
      const link = make('a', results);
      link.href = `#${place.id}`;
      link.id = `result-${index}`;
      link.tabIndex = -1;
      link.setAttribute('role', 'option');
      link.setAttribute('aria-selected', 'false');
      append(make('b', link), place.name, query);
      make('small', link).append(...place.path.split(/(?<=\/)/).flatMap((part) => [part, document.createElement('wbr')]));
      append(make('p', link), place.about, query);
    });
    const count = make('p', results);
    count.className = 'count';
    count.textContent = found.length === 0 ? 'Nothing found'
      : found.length > kMost ? `${kMost} of ${found.length} places` : '';
    if (count.textContent === '') count.remove();
    results.hidden = false;
    search.setAttribute('aria-expanded', 'true');
    if (found.length > 0) select(0);
  };

  search.addEventListener('input', show);
  search.addEventListener('focus', () => { if (search.value) show(); });
  search.addEventListener('keydown', (event) => {
    if (event.key === 'ArrowDown') select(selected + 1);
    else if (event.key === 'ArrowUp') select(selected - 1);
    else if (event.key === 'Enter' && selected >= 0) links()[selected].click();
    else if (event.key === 'Escape') { close(); search.blur(); }
    else return;
    event.preventDefault();
  });
  results.addEventListener('click', (event) => {
    if (!event.target.closest('a')) return;
    close();
    search.blur();
  });
  document.addEventListener('pointerdown', (event) => {
    if (!event.target.closest('.search')) close();
  });
  document.addEventListener('keydown', (event) => {
    const isTyping = event.target.matches('input') || event.ctrlKey || event.metaKey || event.altKey;
    if (event.key !== '/' || isTyping) return;
    event.preventDefault();
    search.focus();
    search.select();
  });

  startFolded();
  follow();
})();
