'use strict';
const INDEX_MAX = 1000;
const articles = [...document.querySelectorAll('article')];
const findings = [...document.querySelectorAll('article li')];
const inputOf = new Map();
for (let input = '', e = document.querySelector('main').firstElementChild; e; e = e.nextElementSibling) {
  if (e.tagName === 'H2') input = e.textContent;
  inputOf.set(e, input);
}
const byId = id => document.getElementById(id);
const rules = article => new Set([...article.querySelectorAll('u > small:last-child')].map(s => s.textContent));
const rulesOf = new Map(articles.map(a => [a, rules(a)]));
for (const rule of [...new Set([...rulesOf.values()].flatMap(r => [...r]))].sort()) {
  byId('rule').add(new Option(rule));
}
function filter() {
  const rule = byId('rule').value;
  let shown = 0;
  for (const article of articles) {
    article.hidden = byId('only').checked && !article.querySelector('ol') ||
      rule !== '' && !rulesOf.get(article).has(rule);
    if (!article.hidden) ++shown;
  }
  byId('count').textContent = `${shown} of ${articles.length} sentences`;
}
byId('only').onchange = byId('rule').onchange = filter;
byId('tools').hidden = false;
filter();
if (findings.length > 0) {
  const index = byId('index');
  index.hidden = false;
  index.querySelector('summary').textContent = `${findings.length} findings` +
    (findings.length > INDEX_MAX ? `, the first ${INDEX_MAX}` : '');
  for (const finding of findings.slice(0, INDEX_MAX)) {
    const link = document.createElement('a');
    link.href = '#' + finding.id;
    link.textContent = `${inputOf.get(finding.closest('article'))}, ` +
      `${finding.closest('article').querySelector('a').textContent}, ${finding.textContent}`;
    link.onclick = () => { byId('only').checked = false; byId('rule').value = ''; filter(); };
    index.querySelector('ul').appendChild(document.createElement('li')).append(link);
  }
}
