// The playground. Only lines that have changed are read again, a few milliseconds at a time, and only sentences that differ
// are replaced on the page. Rows are those of kavi-tn --format html.

const SAMPLES = {
  'everyday': 'Dr. Smith paid $5.50 on 3/1/2020, ok?\nIt\'s 10:30 and 25°C; we won\'t leave before 5 p.m.',
  'markup': '<prosody=rate="2">Slowly</prosody>, <emphasis=strong>now</emphasis>.<breaktime=500> Done!',
  'numbers': '1,234,567 people, 3/4 of 1999, +86 10 12345678, 12.5% and No. 7',
  'findings': 'A stray </poem> tag, a café, and 1234567890123456789012345678901234567890 cats.',
};
const SLICE = 8; // milliseconds of work before the browser handles input; more when that takes longer

const byId = id => document.getElementById(id);
const kavi = await globalThis.kavi.load();
const reader = {plain: kavi.reader(), everyday: kavi.reader({everyday: true})};
const current = () => reader[byId('everyday').checked ? 'everyday' : 'plain'];

// The lines on the page: text, section element, and the rows of its sentences.
let lines = [];
let lastKey = 1;
const waiting = [];
let isWorking = false;

function newLine(text) {
  const section = document.createElement('section');
  const line = {text, section, rows: [], key: ++lastKey, isRead: false};
  waiting.push(line);
  return line;
}

// Replaces the rows between the first and the last that differ.
function show(line, rows) {
  const {section} = line;
  const template = document.createElement('template');
  let kept = 0;
  while (kept < rows.length && kept < line.rows.length && rows[kept] === line.rows[kept]) ++kept;
  let keptAfter = 0;
  while (keptAfter < Math.min(rows.length, line.rows.length) - kept &&
    rows[rows.length - 1 - keptAfter] === line.rows[line.rows.length - 1 - keptAfter]) ++keptAfter;
  for (let n = line.rows.length - kept - keptAfter; n > 0; --n) section.children[kept].remove();
  template.innerHTML = rows.slice(kept, rows.length - keptAfter).join('');
  section.insertBefore(template.content, section.children[kept] ?? null);
  line.rows = rows;
  number(line);
}

// Shows the number of a line in its rows, which have its key.
function number(line) {
  if (line.shownAs === line.number && line.isNumbered === line.rows) return;
  for (const link of line.section.querySelectorAll('article > a')) link.textContent = `line ${line.number}`;
  line.shownAs = line.number;
  line.isNumbered = line.rows;
}

function read(line) {
  line.isRead = true;
  const rows = current().rows(line.text, line.key);
  show(line, rows === '' ? [] : rows.slice(0, -1).split('</article>\n').map(row => row.replace(/<\/article>$/, '') + '</article>'));
}

let sliceEnd = 0;
function work() {
  const begin = performance.now();
  const end = begin + (isWorking ? Math.max(SLICE, begin - sliceEnd) : SLICE);
  while (waiting.length > 0 && performance.now() < end) {
    const line = waiting.shift();
    if (!line.isRead && line.section.isConnected) read(line);
  }
  isWorking = waiting.length > 0;
  sliceEnd = performance.now();
  if (isWorking) setTimeout(work);
  byId('status').textContent = isWorking ? 'reading' : counted();
}

function counted() {
  const sentences = lines.reduce((sum, line) => sum + line.rows.length, 0);
  return `${sentences} ${sentences === 1 ? 'sentence' : 'sentences'}`;
}

// Takes the text of the input field: lines that are the same at its begin and end stay.
function update() {
  const texts = byId('text').value.split('\n');
  let begin = 0;
  while (begin < texts.length && begin < lines.length && texts[begin] === lines[begin].text) ++begin;
  let after = 0;
  while (after < Math.min(texts.length, lines.length) - begin &&
    texts[texts.length - 1 - after] === lines[lines.length - 1 - after].text) ++after;
  const old = lines.slice(begin, lines.length - after);
  const changed = texts.slice(begin, texts.length - after).map((text, i) => {
    if (i >= old.length) return newLine(text);
    // The same section: most of its sentences are the same.
    const line = old[i];
    line.text = text;
    line.isRead = false;
    waiting.push(line);
    return line;
  });
  for (const line of old.slice(changed.length)) line.section.remove();
  const next = lines[lines.length - after]?.section ?? null;
  for (const line of changed) if (!line.section.isConnected) byId('rows').insertBefore(line.section, next);
  lines = [...lines.slice(0, begin), ...changed, ...lines.slice(lines.length - after)];
  lines.forEach((line, i) => {
    line.number = i + 1;
    if (i >= begin) number(line);
  });
  if (!isWorking) work();
}

function readAll() {
  for (const line of lines) {
    line.isRead = false;
    waiting.push(line);
  }
  if (!isWorking) work();
}

byId('text').oninput = update;
byId('everyday').onchange = readAll;
byId('lexicon').oninput = () => {
  try {
    const readings = byId('lexicon').value.replace(/^(.*?\S) {2,}(?=\S)/gm, '$1\t');
    for (const one of Object.values(reader)) one.setLexicon(readings);
    byId('fault').textContent = '';
    readAll();
  } catch (error) {
    byId('fault').textContent = error.message;
  }
};

byId('sample').append(...['', ...Object.keys(SAMPLES)].map(name => new Option(name)));
byId('sample').onchange = event => {
  if (!(event.target.value in SAMPLES)) return;
  byId('text').value = SAMPLES[event.target.value];
  update();
};

async function copy(what, text) {
  await navigator.clipboard.writeText(text);
  byId('status').textContent = `${what} copied`;
}
const results = () => lines.map(line => current().read(line.text, {rules: true}));
byId('json').onclick = () => copy('JSON', JSON.stringify(results(), null, 1));
byId('records').onclick = () => copy('Records', ['word\twritten\tpause\tmarks\tbreak', ...results().flatMap((result, i) =>
  result.sentences.flatMap(sentence => sentence.words.map(word => [word.word,
    lines[i].text.slice(word.offset, word.offset + word.length), word.pause, (word.marks ?? []).join(' '),
    word.breaktime ?? ''].join('\t'))))].join('\n'));
byId('link').onclick = () => {
  const state = new URLSearchParams({text: byId('text').value});
  if (byId('lexicon').value !== '') state.set('lexicon', byId('lexicon').value);
  if (byId('everyday').checked) state.set('everyday', '1');
  location.hash = state.toString();
  return copy('Link', location.href);
};

// Takes the text and settings of the link, or the first sample.
function begin() {
  const state = new URLSearchParams(location.hash.slice(1));
  byId('everyday').checked = state.get('everyday') === '1';
  byId('lexicon').value = state.get('lexicon') ?? '';
  byId('text').value = state.get('text') ?? SAMPLES.everyday;
  byId('lexicon').oninput();
  update();
}
window.onhashchange = begin;
begin();
