// The npm package behind @livekit/agents. Usage: livekit.mjs PACKAGE AGENTS TEXT

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {setImmediate} from 'node:timers/promises';
import {pathToFileURL} from 'node:url';

const [folder, agents, file] = process.argv.slice(2);
const {load} = await import(pathToFileURL(`${folder}/kavi.js`));
const {tokenize, tts, voice, initializeLogger} =
  await import(pathToFileURL(`${agents}/node_modules/@livekit/agents/dist/index.js`));
initializeLogger({pretty: false, level: 'warn'});

const english = (await load({everyday: true})).reader({everyday: true});

// ---- where kavi fits in ----

// As one of a session's ttsTextTransforms.
function toSpoken(texts) {
  return texts.pipeThrough(english.transform({by: 'clause'}))
    .pipeThrough(new TransformStream({transform: ({plain}, told) => told.enqueue(plain)}));
}

// As the tokenizer of a StreamAdapter.
class Sentences extends tokenize.SentenceTokenizer {
  tokenize(text) {
    const stream = english.openStream();
    const utterances = stream.add(text).concat(stream.end());
    stream.free();
    return utterances.map(({plain}) => plain.trim());
  }

  stream() {
    return new SentenceStream();
  }
}

class SentenceStream extends tokenize.SentenceStream {
  #stream = english.openStream();

  pushText(text) {
    this.#tell(this.#stream.add(text));
  }

  flush() {
    this.#tell(this.#stream.end());
    this.#stream.forget();
  }

  endInput() {
    this.flush();
    this.close();
  }

  close() {
    super.close();
    this.#stream.free();
  }

  #tell(utterances) {
    for (const {plain} of utterances) {
      if (plain.trim() !== '') this.queue.put({token: plain.trim(), segmentId: 'kavi'});
    }
  }
}

// ---- both say what is read at once ----

const isTable = file.endsWith('.tsv');
const lines = readFileSync(file, 'utf8').split('\n').filter(line => line !== '' && !line.startsWith('#'));
const text = lines.map(line => isTable ? line.split('\t')[1] : line).join(isTable ? ' ' : '\n');

async function collected(iterable) {
  const all = [];
  for await (const each of iterable) all.push(each);
  return all;
}
function pieces(size) {
  return new ReadableStream({
    start(controller) {
      for (let at = 0; at < text.length; at += size) controller.enqueue(text.slice(at, at + size));
      controller.close();
    },
  });
}

const transformed = await collected(voice.textTransforms.applyTextTransforms(pieces(4), [toSpoken]));
assert.equal(transformed.join(''), english.normalize(text));
const tokens = new Sentences().stream();
for await (const piece of pieces(4)) tokens.pushText(piece);
tokens.endInput();
const said = await collected(tokens);
const withoutBlanks = words => words.replace(/\s+/g, '');
assert.equal(withoutBlanks(said.map(({token}) => token).join('')), withoutBlanks(english.normalize(text)));
assert.deepEqual(said.map(({token}) => token), new Sentences().tokenize(text).filter(token => token !== ''));
console.log(`holds   a text transform and a sentence stream say what is read at once: ${text.length} characters`);

// A voice that notes what it is to say.
class Voice extends tts.TTS {
  label = 'notes';
  heard = [];
  constructor() { super(8000, 1, {streaming: false}); }
  synthesize(words) {
    this.heard.push(words);
    return {async *[Symbol.asyncIterator]() {}, close() {}};
  }
  stream() { throw new Error('it is adapted'); }
}
const example = "It's on Jan. 3, 2024. We meet at 5:30 p.m. and it costs $1.5 million! Then we go.";
const spoken = new Voice();
const speech = new tts.StreamAdapter(spoken, new Sentences()).stream();
for (const character of example) speech.pushText(character);
speech.endInput();
await collected(speech);
assert.deepEqual(spoken.heard, new Sentences().tokenize(example));
console.log(`holds   a voice behind StreamAdapter is given: ${spoken.heard.join(' | ')}`);

// ---- how soon ----

// Where what was told ends in the text: by its letters and digits, as marks may have changed places, and those that are
// not near are passed over, as some are told twice.
function endOf(told, from) {
  let at = from;
  for (const [character] of told.matchAll(/[\p{L}\p{N}]/gu)) {
    const near = text.slice(at, at + 24).indexOf(character);
    if (near >= 0) at += near + character.length;
  }
  while (/[^\s\p{L}\p{N}]/u.test(text.charAt(at))) ++at;
  return at;
}
// Gives the text character by character to `add`, which returns the sources of what it tells.
async function latencies(add) {
  const found = [];
  let end = 0;
  for (let at = 0; at < text.length; ++at) {
    for (const source of await add(text[at])) {
      end = endOf(source, end);
      found.push(Math.max(at + 1 - end, 0)); // inside of marks
    }
  }
  return found.sort((a, b) => a - b);
}

async function byLivekit() {
  const stream = new tokenize.basic.SentenceTokenizer().stream();
  const all = [];
  let n_told = 0;
  const reads = (async () => { for await (const {token} of stream) all.push(token); })();
  const found = await latencies(async piece => {
    stream.pushText(piece);
    await setImmediate();
    const now = all.slice(n_told);
    n_told = all.length;
    return now;
  });
  stream.endInput();
  await reads;
  return [found, all.join('')];
}
async function byKavi(by) {
  const stream = english.openStream({by});
  let all = '';
  const sources = utterances => utterances.map(({source}) => { all += source; return source; }).filter(source => source.trim() !== '');
  const found = await latencies(async piece => sources(stream.add(piece)));
  sources(stream.end());
  stream.free();
  return [found, all];
}

const letters = words => words.replace(/[^\p{L}\p{N}]/gu, '');
console.log('characters after its end until a piece is told: median, of 99 in 100, worst; pieces; are its letters those of the text?');
const rows = [['kavi, clauses', await byKavi('clause')], ['kavi, sentences', await byKavi('sentence')], ['@livekit/agents, sentences', await byLivekit()]];
for (const [who, [found, all]] of rows) {
  const row = [found[found.length >> 1], found[Math.floor(found.length * 0.99)], found.at(-1), found.length, letters(all) === letters(text) ? 'yes' : 'no'];
  console.log(who.padEnd(28) + row.map(each => `${each}`.padStart(6)).join(''));
}
