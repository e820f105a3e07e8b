// Texts that are still being written, in JavaScript: what is handed over is what read() has for the whole.

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {copyFileSync, mkdirSync, mkdtempSync, rmSync, symlinkSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join, resolve} from 'node:path';
import test from 'node:test';
import {pathToFileURL} from 'node:url';

const {load} = await import(pathToFileURL(`${process.env.KAVI_PACKAGE}/node.js`));
const small = await load();
const large = await load({everyday: true});
const TEXT = 'Zürich, “Dr. Smith” paid <prosody=rate="2">$5.50</prosody> on 3/1/2020, </poem>ok? 😀 It\'s 10:30!  Wait... what is 中 \ud83d <poem=a>this. '
  .repeat(20) + 'Told at the end. So. ';

async function collected(utterances) {
  const all = [];
  for await (const utterance of utterances) all.push(utterance);
  return all;
}

test('all utterances together are what is read at once, however the text is cut', async () => {
  for (const reader of [small.reader(), large.reader({everyday: true})]) {
    const whole = reader.read(TEXT, {rules: true});
    const spoken = reader.normalize(TEXT);
    for (const by of ['sentence', 'clause']) {
      for (const size of [1, 3, 50, TEXT.length]) {
        const pieces = [];
        for (let at = 0; at < TEXT.length; at += size) pieces.push(TEXT.slice(at, at + size));
        const utterances = await collected(reader.stream(pieces, {by, rules: true}));
        assert.deepEqual(utterances.flatMap(({clauses}) => clauses), whole.sentences);
        assert.deepEqual(utterances.flatMap(({findings}) => findings).map(({sentence, ...found}) => found),
          whole.findings.map(({sentence, ...found}) => found));
        assert.equal(utterances.map(({plain}) => plain).join(''), spoken);
        assert.equal(utterances.map(({source}) => source).join(''), TEXT.trimEnd() + ' ');
        assert(utterances.slice(0, -1).every(({words, clauses}) => words.length > 0 && (by === 'clause' || clauses.at(-1).endsSentence)));
      }
    }
  }
});

test('a stream by hand is interrupted, ended and lost', () => {
  const stream = small.reader().openStream({by: 'clause'});
  assert.deepEqual(stream.add('Ü. Two, thr\ud83d').map(({plain}) => plain), ['. Two,']);
  stream.forget();
  const told = stream.add('Four. <poem=a>Five. So').concat(stream.end());
  const [four] = told;
  assert.deepEqual([four.plain, four.source, four.words[0].offset, four.clauses[0].runs], ['Four.', 'Four. ', 12, []]);
  assert.deepEqual(told.at(-1).findings.map(({offset, length}) => [offset, length]), [[18, 1]]);
  for (const call of [() => stream.end(), () => stream.add('more')]) assert.throws(call, /the text has ended/);
  stream.forget();
  assert.deepEqual(stream.add(''), []);
  assert.throws(() => stream.add(new Uint8Array(1)), TypeError);
  stream.free();
  stream.free();
  assert.throws(() => stream.add('more'), /the stream is freed/);
  assert.throws(() => small.reader().openStream({by: 'word'}), TypeError);
});

test('UTF-8 is piped through', async () => {
  const bytes = new TextEncoder().encode('Café. Yes, it is');
  const chunks = Array.from(bytes, byte => Uint8Array.of(byte));
  const text = new ReadableStream({
    start(controller) {
      chunks.forEach(chunk => controller.enqueue(chunk));
      controller.close();
    },
  }).pipeThrough(new TextDecoderStream()).pipeThrough(large.reader({everyday: true}).transform());
  const expected = ['Cafe.', ' Yes, it is'];
  assert.deepEqual((await collected(text)).map(({plain}) => plain), expected);
  assert.deepEqual((await collected(large.stream(chunks))).map(({plain}) => plain), expected);
});

test('the example says what it should', () => {
  const folder = mkdtempSync(join(tmpdir(), 'kavi-'));
  try {
    mkdirSync(join(folder, 'node_modules'));
    symlinkSync(resolve(process.env.KAVI_PACKAGE), join(folder, 'node_modules/kavi-tn'));
    copyFileSync(new URL('../../examples/stream.mjs', import.meta.url), join(folder, 'stream.mjs'));
    assert.equal(execFileSync('node', [join(folder, 'stream.mjs')]).toString(), `It is on January third twenty twenty four.
We meet at five thirty p m and it costs one point five million dollars!
Then we go.
Yes 0
that 5, is 10, right 13
Sorry.
`);
  } finally {
    rmSync(folder, {recursive: true});
  }
});
