#include "html_page.h"

namespace kavi::tool {

// Sentences that are not on the screen are not laid out, so a long page opens at once. Without the
// script, the page is whole but for the index and the filter.
const char* const HTML_PROLOGUE = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>What it will say</title>
<style>
:root { color-scheme: light dark; --ink: #1d2430; --page: #fbfaf7; --chip: #ffffff; --line: #8b8f98;
  --soft: #565b66; --pause: #9a3f19; --alarm: #a3202c; --span: #1f5f94; }
@media (prefers-color-scheme: dark) { :root { --ink: #e7e4dd; --page: #16181d; --chip: #22262e;
  --line: #7d838f; --soft: #aab0bb; --pause: #f09a6c; --alarm: #ff9299; --span: #7cbdf0; } }
body { margin: 0 auto; padding: 1rem; max-width: 60rem; color: var(--ink); background: var(--page);
  font: 1rem/1.4 system-ui, sans-serif; }
a { color: inherit; }
article { padding: .7rem 0; border-bottom: 1px solid var(--line); content-visibility: auto;
  contain-intrinsic-size: auto 8rem; }
article:target, li:target { outline: 2px solid var(--pause); }
h2 { font-size: 1rem; margin: 1.5rem 0 .5rem; }
article > a { font-size: .8rem; color: var(--soft); }
article p { margin: 0 0 .4rem; white-space: pre-wrap; overflow-wrap: anywhere; }
u { display: inline-block; vertical-align: top; margin: 0 .4rem .3rem 0; max-width: 100%;
  text-decoration: none; font-size: .8rem; color: var(--soft); overflow-wrap: anywhere; }
i { display: inline-block; font-style: normal; font-size: 1rem; color: var(--ink); padding: 0 .4rem;
  margin: 0 .2rem .1rem 0; background: var(--chip); border: 1px solid var(--line);
  border-radius: .4rem; overflow-wrap: anywhere; max-width: 100%; box-sizing: border-box; }
i.m { border-bottom: 3px solid var(--span); }
b { padding: 0 .3rem; font-size: 1rem; color: var(--pause); }
small { display: block; font-size: .75rem; }
i + small { color: var(--span); }
s, code { display: inline-block; font-size: .8rem; margin-right: .4rem; color: var(--soft); overflow-wrap: anywhere; }
ol { margin: .4rem 0 0; color: var(--alarm); font-size: .9rem; }
sup a { color: var(--alarm); }
mark { color: inherit; background: none; text-decoration: underline wavy var(--alarm); }
#tools { display: flex; flex-wrap: wrap; gap: .5rem 1rem; align-items: center; }
[hidden] { display: none !important; }
@media print { #tools, #index { display: none; } article { content-visibility: visible; break-inside: avoid; } }
</style>
</head>
<body>
<header>
<h1>What it will say</h1>
<details><summary>How to read this page</summary>
<p>Over each piece of a sentence stands what was written, in the chips under it what is said. A rule
is named where it is not that of a plain word. <s>Struck through</s> is not spoken. <code>Markup</code>
stands as it was written; words inside a span have a thick lower border, and its attributes stand
under the first of them. A mark stands under the character that it was read from. The strokes | || |||
after a word are a phrase, an intonation phrase and a sentence as its pause; "break" is a pause of the
user's. A small number leads to what was found there; bytes of a line are counted from 0.</p>
</details>
<div id="tools" hidden>
<label><input type="checkbox" id="only"> only sentences with findings</label>
<label>rule <select id="rule"><option value="">any</option></select></label>
<span role="status" id="count"></span>
</div>
<nav id="index" aria-label="Findings" hidden><details><summary></summary><ul></ul></details></nav>
</header>
<main>
)";

const char* const HTML_EPILOGUE = R"(</main>
<script>
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
</script>
</body>
</html>
)";

}  // namespace kavi::tool
