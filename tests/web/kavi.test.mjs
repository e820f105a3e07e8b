// The npm package: what it says is what the native tool says, over all seeds, in JavaScript's own places.
//
// KAVI_TN and KAVI_PACKAGE name the tool and the package.

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {readdirSync, readFileSync} from 'node:fs';
import test from 'node:test';
import {pathToFileURL} from 'node:url';

const {EVERYDAY, load} = await import(pathToFileURL(`${process.env.KAVI_PACKAGE}/node.js`));
const small = await load();
const large = await load({everyday: true});

// What the tool's JSON has for a text, with places as units of the string.
function byTool(text, ...options) {
  const bytes = Buffer.from(text);
  const out = execFileSync(process.env.KAVI_TN, ['--format', 'jsonl', '--fields',
    'offset,length,normalized,speakable,plain,before,words,findings,runs', '-0', ...options],
  {input: bytes, stdio: ['pipe', 'pipe', 'ignore'], maxBuffer: 1 << 30}).toString();
  // The units of the characters that begin before each byte.
  const unitsBefore = [0];
  for (const byte of bytes) unitsBefore.push(unitsBefore.at(-1) + ((byte & 0xc0) === 0x80 ? 0 : byte >= 0xf0 ? 2 : 1));
  const units = place => unitsBefore[place];
  const range = at => {
    const offset = units(at.offset);
    return {offset, length: units(at.offset + at.length) - offset};
  };
  const sentences = out.split('\n').filter(Boolean).map(line => JSON.parse(line));
  return {
    sentences: sentences.filter(s => s.words).map(s => ({...range(s), normalized: s.normalized, speakable: s.speakable,
      plain: s.plain, before: s.before, words: s.words.filter(w => w.word !== null).map(w => ({...w, ...range(w)})),
      runs: s.runs.map(r => ({...range(r), rule: r.rule, reading: r.reading}))})),
    findings: sentences.flatMap(s => s.findings).map(f => ({code: f.code, ...range(f)})),
  };
}

function byPackage(reader, text) {
  const {sentences, findings} = reader.read(text, {rules: true});
  return {
    sentences: sentences.map(({offset, length, normalized, speakable, plain, before, words, runs}) =>
      ({offset, length, normalized, speakable, plain, before, words, runs})),
    findings: findings.map(({code, offset, length}) => ({code, offset, length})),
  };
}

// What was read, as in tests/golden/answers.txt.
function listed({sentences, findings}, text) {
  const span = ({offset, length}) =>
    `${Buffer.byteLength(text.slice(0, offset))}+${Buffer.byteLength(text.slice(offset, offset + length))}`;
  const word = (kind, {word, after, offset, length, pause, marks = [], ...others}) =>
    [`${kind} ${word}|${after}| ${span({offset, length})} ${pause}|`, ...marks,
      ...Object.entries(others).map(([name, value]) => `${name}=${value}`)].join(' ');
  const found = number => findings.filter(f => f.sentence === number).map(f =>
    `finding ${f.code} ${span(f)} ${number} ${f.message}`);
  return [...sentences.flatMap((s, number) => [...found(number),
    `sentence ${span(s)}|${s.normalized}|${s.speakable}|${s.plain}|${s.before}|`, word('head', s.head),
    ...s.words.map(w => word('word', w)), ...s.runs.map(run => `run ${span(run)} ${run.rule}|${run.reading}|`)]),
  ...found(sentences.length)].map(line => `${line}\n`).join('');
}

test('answers as C does', () => {
  assert.ok(execFileSync(process.env.KAVI_TN, ['--version']).toString().endsWith(` ${small.readingsVersion}\n`));
  const golden = readFileSync('tests/golden/answers.txt').toString();
  const everyday = large.reader({everyday: true});
  const answers = golden.match(/^>.*$/gm).map(line => {
    const text = line.replace(/^>+ /, '').replace(/\\\{(\d+):(.*?)}/g, (_, n, piece) => piece.repeat(n));
    const reader = line[1] === '>' ? everyday : small;
    assert.deepEqual(byPackage(reader, text), byTool(text, ...(line[1] === '>' ? ['--everyday'] : [])), text);
    return `${line}\n${listed(reader.read(text, {rules: text.length < 1000}), text)}`;
  });
  assert.equal(answers.join(''), golden);
});

const seeds = readdirSync('fuzz/seeds').map(name => readFileSync(`fuzz/seeds/${name}`).toString().replaceAll('\0', ''));

test('reads the seeds as the native tool does', () => {
  for (const text of [...seeds, seeds.join(' '), 'Zürich «5.50» 😀 1999, ½ km', '']) {
    assert.deepEqual(byPackage(small, text), byTool(text), text);
  }
});

test('reads everyday English as the native tool does', () => {
  const reader = large.reader({everyday: true});
  for (const text of [seeds.join(' '), "Tom's 5 km won't cost €20 – at 5 p.m. in the 1990s"]) {
    assert.deepEqual(byPackage(reader, text), byTool(text, '--everyday'), text);
  }
  assert.equal(large.reader({everyday: ['years'], americanDates: true}).normalize('3/4/2020'),
    'March fourth twenty twenty');
  assert.equal(large.normalize("won't"), 'will not');
  const all = 'Mr. A’s €5 × 5 km, 1990s – 5 p.m., a@b.com, Henry VIII, ½, café, *so* C++ on the left.';
  for (const name of EVERYDAY) {
    const others = EVERYDAY.filter(other => other !== name).join(',');
    assert.deepEqual(byPackage(large.reader({everyday: name}), all), byTool(all, '--everyday', '--without', others), name);
  }
});

test('has a lexicon', () => {
  const reader = large.reader({lexicon: 'kavi\tkahvee'});
  assert.equal(reader.normalize('kavi won 5'), 'kahvee won five');
  assert.throws(() => reader.setLexicon('bad'), /^SyntaxError: lexicon:1:/);
  assert.equal(reader.normalize('kavi'), 'kahvee');
  reader.setLexicon('');
  assert.equal(reader.normalize('kavi'), 'kavi');
});

test('has the source of each sentence, with a byte order mark', () => {
  const text = '\ufeff😀 “Paid” $5.50, ok? x';
  const {sentences} = small.read(text);
  assert.equal(sentences.map(({source}) => source).join(''), text);
  assert.equal(sentences[0].normalized[0], '\ufeff');
});

test('refuses what has no meaning, and says so', async () => {
  for (const [call, said] of [
    [() => small.normalize(5), /^TypeError: a text/],
    [() => small.read('a', {rule: true}), /^TypeError: no such option: rule$/],
    [() => small.reader({american_dates: true}), /^TypeError: no such option: american_dates$/],
    ...[2 ** 32, -1, 1.5, '1'].map(capacity => [() => small.reader({capacity}), /^TypeError: a capacity/]),
    [() => small.reader({lexicon: 'a\tb'}), /^TypeError: .*load\({everyday: true}\)/],
    [() => small.reader().setLexicon('a\tb'), /^TypeError: .*load\({everyday: true}\)/],
    [() => small.reader({everyday: 'units'}), /^TypeError: .*load\({everyday: true}\)/],
    [() => large.reader({everyday: ['units', 'all']}), /^TypeError: no class of everyday English: all$/],
    [() => small.reader({capacity: 1}).normalize('a b'), /^RangeError: the capacity/],
  ]) assert.throws(call, said);
  await assert.rejects(load({everyDay: true}), /^TypeError: no such option: everyDay$/);
  assert.equal(small.reader({capacity: 1}).read('a b').complete, false);
});

test('frees a reader once, also one whose constructor throws', () => {
  const reader = large.reader();
  reader.free();
  reader.free();
  for (const call of [() => reader.normalize('a'), () => reader.openStream()]) assert.throws(call, /the reader is freed/);
  // Some 100 KB each: all of them together are more than there can be.
  for (let i = 0; i < 30000; ++i) assert.throws(() => large.reader({lexicon: 'bad'}), SyntaxError);
  assert.equal(large.reader({lexicon: 'a\tb'}).normalize('a 5'), 'b five');
});

test('reads the next text when there was no memory for one', async () => {
  // The same module with 8 MB at most.
  const wasm = readFileSync(`${process.env.KAVI_PACKAGE}/kavi-everyday.wasm`);
  const most = Buffer.from([0x80, 0x80, 0x02]); // 32,768 pages
  wasm.set([0x80, 0x81, 0x00], wasm.indexOf(most));
  const {reader} = await load({everyday: true, wasm});
  const first = reader({everyday: 'contractions', lexicon: 'kavi\tkahvee'});
  const second = reader();
  assert.throws(() => second.read('a '.repeat(200000)), /^RangeError: kavi ended with/);
  assert.equal(first.normalize("kavi won't 5"), 'kahvee will not five');
  assert.equal(second.normalize("kavi 5"), 'kavi five');
  for (let i = 0; i < 2; ++i) assert.throws(() => second.read('a'.repeat(3000000)), /^RangeError: not enough memory$/);
  assert.equal(second.normalize("kavi 5"), 'kavi five');
  first.free();
  for (let length = 0; length < 8000; length += 4) second.normalize(' '.repeat(length)); // in one room, not in 24 MB
  for (let i = 0; i < 2000; ++i) second.openStream().free(); // some 20 KB each
});

test('reads a stream by lines', async () => {
  const bytes = new TextEncoder().encode('a 5\nb é\r\n\nc\n\n');
  const lines = [];
  for await (const {number, text, result} of small.lines([...bytes].map(byte => Uint8Array.of(byte)))) {
    lines.push([number, text, result.sentences.map(s => s.plain).join('')]);
  }
  assert.deepEqual(lines, [[1, 'a 5', 'a five'], [2, 'b é\r', 'b'], [3, '', ''], [4, 'c', 'c'], [5, '', '']]);
  const last = [];
  for await (const {text, result} of small.lines(['a', 'b'])) last.push(text, ...result.sentences.flatMap(s => s.runs));
  assert.deepEqual(last, ['ab']);
});

test('reads long texts', () => {
  const long = 'It is 10:30, and it costs $5. '.repeat(40000);
  const spoken = small.normalize(long); // the memory grows
  assert.equal(spoken.length, small.normalize('It is 10:30, and it costs $5.').length * 40000 + 39999);
  const {sentences, findings} = small.read('中'.repeat(100000) + ' 5');
  assert.equal(sentences.at(-1).words.at(-1).offset, 100001);
  assert.deepEqual(findings.map(f => [f.code, f.offset, f.length]), [['not-spoken', 0, 100000]]);
});

test('does what the pages show', async () => {
  for (const page of ['README.md', 'web/README.md']) {
    const [, program] = /```js\n([^]*?)```/.exec(readFileSync(page).toString());
    const lines = program.replace(/import .* from 'kavi-tn';/, `const {load} = await import('${pathToFileURL(
      `${process.env.KAVI_PACKAGE}/node.js`)}');`).replaceAll('console.log(', '(');
    for (const [, call, expected] of lines.matchAll(/^\(?(normalize\(.*?\))\)?; \/\/ '?(.*?)'?$/gm)) {
      assert.equal(Function('normalize', `return ${call}`)(small.normalize), expected);
    }
  }
});
