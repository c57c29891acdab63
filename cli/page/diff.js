'use strict';
(() => {
  const rows = [...document.querySelectorAll('tr[data-kind]')];
  const sections = [...document.querySelectorAll('main section')];
  const kinds = [...document.querySelectorAll('.kind')];
  const search = document.getElementById('search');
  const status = document.getElementById('status');
  const nothing = document.getElementById('nothing');

  // ---- the filter ----

  const words = new Map(rows.map((row) => {
    const section = row.closest('section');
    return [row, `${section.dataset.path} ${section.querySelector('h2').textContent} ${row.textContent}`.toLowerCase()];
  }));
  const filter = () => {
    const query = search.value.trim().toLowerCase();
    const hidden = new Set(kinds.filter((one) => one.getAttribute('aria-pressed') !== 'true').map((one) => one.dataset.kind));
    for (const row of rows) row.hidden = hidden.has(row.dataset.kind) || !words.get(row).includes(query);
    const isFiltered = query !== '' || hidden.size !== 0;
    for (const section of sections) {
      section.hidden = isFiltered && !section.querySelector('tr[data-kind]:not([hidden])');
    }
    const shown = rows.filter((row) => !row.hidden).length;
    nothing.hidden = shown !== 0 || !isFiltered;
    status.textContent = isFiltered ? `${shown} of ${rows.length} differences are shown` : '';
  };
  for (const kind of kinds) {
    kind.addEventListener('click', () => {
      kind.setAttribute('aria-pressed', String(kind.getAttribute('aria-pressed') !== 'true'));
      filter();
    });
  }
  search.addEventListener('input', filter);

  // ---- from one difference to the next ----

  const go = (step) => {
    const shown = rows.filter((row) => !row.hidden);
    if (shown.length === 0) return;
    const at = shown.indexOf(document.activeElement.closest('tr[data-kind]'));
    const next = at < 0 ? (step > 0 ? 0 : shown.length - 1) : (at + step + shown.length) % shown.length;
    shown[next].focus({preventScroll: true});
    shown[next].scrollIntoView({block: 'center'});
  };
  // A button takes the focus from the row, so it is remembered.
  let last = null;
  addEventListener('focusin', (event) => { if (event.target.matches('tr[data-kind]')) last = event.target; });
  for (const [id, step] of [['previous', -1], ['next', 1]]) {
    document.getElementById(id).addEventListener('click', () => {
      if (last && !last.hidden) last.focus({preventScroll: true});
      go(step);
    });
  }
  document.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    if (event.target === search) {
      if (event.key !== 'Escape') return;
      search.value = '';
      filter();
      search.blur();
    } else if (event.key === 'n' || event.key === 'j') go(1);
    else if (event.key === 'p' || event.key === 'k') go(-1);
    else if (event.key === '/') {
      search.focus();
      search.select();
    } else return;
    event.preventDefault();
  });

  // ---- on paper, all that was added or removed is unfolded ----

  let folded = [];
  addEventListener('beforeprint', () => {
    folded = [...document.querySelectorAll('tr details:not([open])')];
    for (const one of folded) one.open = true;
  });
  addEventListener('afterprint', () => {
    for (const one of folded) one.open = false;
  });
})();
