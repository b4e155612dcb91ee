// The script of the page. The page works without it.
#pragma once

#include <string_view>

namespace mxdinfo {

// The page allows only the script with this SHA-256.
inline constexpr std::string_view page_script_hash = "2toyzCbx1ule03CTfCVdefPOnwQs+xjhvzCQhfofWWY=";

inline constexpr std::string_view page_script = R"(
'use strict';
const all = (selector, part = document) => [...part.querySelectorAll(selector)];
const texts = new WeakMap();

// Where scripts run, the content of <noscript> is text. It becomes elements when it is opened.
function fill(details) {
  const stored = details.querySelector(':scope > noscript');
  if (!stored) return;
  textOf(details);
  const made = document.createElement('template');
  made.innerHTML = stored.textContent;
  stored.replaceWith(made.content);
}

// In lower case, without the descriptions of pictures.
function textOf(part) {
  if (!texts.has(part)) {
    const named = {amp: '&', lt: '<', gt: '>', quot: '"', apos: "'"};
    const stored = part.querySelector('noscript');
    const html = stored ? stored.textContent : part.innerHTML;
    const text = html.replace(/<svg.*?<\/svg>|<[^>]*>/gs, ' ');
    const name = stored ? part.querySelector('summary').textContent + ' ' : '';
    texts.set(part, (name + text.replace(/&(\w+);/g, (all, c) => named[c] || all)).toLowerCase());
  }
  return texts.get(part);
}

function show(id) {
  const section = document.getElementById(id.replace(/l\d+$/, ''));
  const details = section && section.querySelector(':scope > details');
  if (details) {
    fill(details);
    details.open = true;
  }
  if (section) section.hidden = false;
  const target = document.getElementById(id);
  if (target) {
    target.hidden = false;
    target.scrollIntoView();
  }
}

// Hides the layers of an open document that do not match, unless none does.
function narrow(section, matches) {
  const layers = all('li[id]', section);
  const matching = new Set(layers.filter(layer => matches(layer.textContent.toLowerCase())));
  const named = layers.filter(layer => matches(layer.firstElementChild.textContent.toLowerCase()));
  for (const layer of layers) {
    const shown = matching.has(layer) || named.some(group => group.contains(layer));
    layer.hidden = matching.size > 0 && !shown;
  }
  return layers.filter(layer => !layer.hidden).length;
}

function filter() {
  const words = document.getElementById('filter').value.toLowerCase().split(/\s+/);
  const matches = text => words.every(word => text.includes(word));
  const sections = all('main > section');
  const rows = new Map(all('#documents tbody tr').map(row => [row.querySelector('a').hash, row]));
  let documents = 0, layers = 0;
  for (const section of sections) {
    const details = section.querySelector(':scope > details');
    section.hidden = sections.length > 1 && !matches(textOf(details || section));
    documents += !section.hidden;
    if (!section.hidden && (!details || details.open)) layers += narrow(section, matches);
    if (rows.has('#' + section.id)) rows.get('#' + section.id).hidden = section.hidden;
  }
  if (!sections.length) {  // an index of pages
    for (const row of all('#documents tbody tr')) {
      row.hidden = !matches(row.textContent.toLowerCase());
    }
  }
  for (const row of all('#totals tbody tr')) {
    row.hidden = !matches(row.querySelector('summary').textContent.toLowerCase());
  }
  document.getElementById('found').textContent =
      sections.length > 1 ? `${documents} of ${sections.length} documents` :
      sections.length ? `${layers} layers` :
      `${all('#documents tbody tr:not([hidden])').length} pages`;
}

// Numbers begin with the largest.
function sort(head) {
  const table = head.closest('table');
  const isNumber = head.classList.contains('n');
  const order = head.getAttribute('aria-sort');
  const ascending = isNumber ? order === 'descending' : order !== 'ascending';
  const collator = new Intl.Collator(undefined, {numeric: true});
  const key = row => {
    const cell = row.cells[head.cellIndex];
    if (isNumber) return cell ? Number(cell.textContent) || 0 : -1;
    return (cell.querySelector('summary') || cell).textContent;
  };
  const rows = [...table.tBodies[0].rows].map(row => [key(row), row]);
  const compare = isNumber ? (a, b) => a - b : collator.compare;
  rows.sort((a, b) => ascending ? compare(a[0], b[0]) : compare(b[0], a[0]));
  for (const each of all('th', table.tHead)) each.removeAttribute('aria-sort');
  head.setAttribute('aria-sort', ascending ? 'ascending' : 'descending');
  table.tBodies[0].append(...rows.map(row => row[1]));
}

addEventListener('toggle', event => { if (event.target.open) fill(event.target); }, true);
addEventListener('hashchange', () => show(location.hash.slice(1)));
addEventListener('click', event => {
  const link = event.target.closest('a[href^="#d"]');
  if (link) show(link.hash.slice(1));
});
addEventListener('DOMContentLoaded', () => {
  // In the order in which it is shown.
  document.querySelector('main').before(...all('header, #documents, #totals'));
  for (const head of all('thead th')) {
    const button = document.createElement('button');
    button.append(...head.childNodes);
    button.onclick = () => sort(head);
    head.append(button);
  }
  const open = document.getElementById('open');
  open.hidden = all('main > section').length < 2;
  open.onclick = () => {
    const shown = all('main > section:not([hidden]) > details');
    const opens = shown.some(details => !details.open);
    for (const details of shown) details.open = opens;
  };
  document.getElementById('filter').oninput = filter;
  document.getElementById('tools').hidden = false;
  if (all('details[open] > noscript').length) all('details[open]').forEach(fill);
  if (location.hash) show(location.hash.slice(1));
});
)";

}  // namespace mxdinfo
