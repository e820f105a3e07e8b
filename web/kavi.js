// What browser.js, node.js and inline.js share: the functions of kavi.h in WebAssembly, with strings and UTF-16 offsets of
// JavaScript. kavi.d.ts has the contracts of what they export.

// The layout of the structures of kavi.h where pointers have four bytes, as tts-c/src/layout.cpp asserts it.
const WORD = {size: 76, text: 0, after: 8, source: 16, pause: 24, nMarks: 28, marks: 32, breakTime: 44, attributes: 48};
const SENTENCE = {source: 0, normalized: 8, speakable: 16, plain: 24, before: 32, head: 40, words: 44, nWords: 48,
  runs: 52, nRuns: 56, endsSentence: 60};
const RUN = {size: 20, source: 0, rule: 8, reading: 12};
const FINDING = {code: 0, offset: 4, length: 8, sentence: 12};
const ATTRIBUTES = 7;
const WANTS_RUNS = 1;
const PLAIN = 1;
const OK = 0;
const INCOMPLETE = 1;
const BAD_LEXICON = 5;

export const EVERYDAY = Object.freeze(['titles', 'contractions', 'currencies', 'units', 'years', 'times', 'addresses',
  'roman', 'numbers', 'letters', 'shields', 'marks']);
const AMERICAN_DATES = 1 << 16;

const encoder = new TextEncoder();
const decoder = new TextDecoder('utf-8', {ignoreBOM: true});

// An unknown option is a mistake.
function refuseOthers(options, known) {
  for (const name of Object.keys(options)) {
    if (!known.includes(name)) throw new TypeError(`no such option: ${name}`);
  }
}

// The bits of kavi.h for names of classes.
function bitsOf(everyday) {
  if (typeof everyday === 'boolean') return everyday ? (1 << EVERYDAY.length) - 1 : 0;
  const names = typeof everyday === 'string' ? [everyday] : everyday;
  return names.reduce((sum, name) => {
    const bit = EVERYDAY.indexOf(name);
    if (bit < 0) throw new TypeError(`no class of everyday English: ${name}`);
    return sum | 1 << bit;
  }, 0);
}

// Converts byte offsets in the UTF-8 of a text to indices of its UTF-16 units; cheap for one after the other. `text` begins
// at the index `first` and the byte `firstByte` of the whole text; `before` has the indices of tags before it, by their bytes.
class Units {
  constructor(bytes, text, first = 0, firstByte = 0, before = new Map()) {
    this.bytes = bytes;
    this.text = text;
    this.first = first;
    this.firstByte = firstByte;
    this.before = before;
    this.isAscii = bytes.length === text.length;
    this.byte = 0;
    this.unit = 0;
  }
  at(offset) {
    const byte = offset - this.firstByte;
    if (byte < 0) return this.before.get(offset) ?? this.before.get(offset - 1) + 1; // a tag's begin, or its end
    if (this.isAscii) return this.first + byte;
    if (byte < this.byte) this.byte = this.unit = 0;
    for (; this.byte < byte; ++this.byte) {
      const value = this.bytes[this.byte];
      if ((value & 0xc0) !== 0x80) this.unit += value >= 0xf0 ? 2 : 1;
    }
    return this.first + this.unit;
  }
  slice({offset, length}) {
    return this.text.slice(offset - this.first, offset - this.first + length);
  }
}

// The end of the text of a stream, from the begin of the next sentence on, for converting offsets.
class KeptText {
  #text = '';
  #begin = 0; // its index in the whole text,
  #beginByte = 0; // and its byte offset
  #length = 0; // of the whole text so far,
  #byteLength = 0; // and in bytes
  // The index of each "<", by its byte offset: a tag that nothing closes is reported at the end, when its text is gone.
  #tags = new Map();

  add(piece) {
    let byte = this.#byteLength;
    let from = 0;
    for (let at = piece.indexOf('<'); at >= 0; at = piece.indexOf('<', at + 1)) {
      byte += encoder.encode(piece.slice(from, at)).length;
      from = at;
      this.#tags.set(byte, this.#length + at);
    }
    this.#length += piece.length;
    this.#byteLength = byte + encoder.encode(piece.slice(from)).length;
    this.#text += piece;
  }
  // A function that makes Units of the text as it is now.
  unitsMaker() {
    const bytes = encoder.encode(this.#text);
    return () => new Units(bytes, this.#text, this.#begin, this.#beginByte, this.#tags);
  }
  // Drops what is before an index in the whole text.
  dropBefore(index) {
    const dropped = this.#text.slice(0, index - this.#begin);
    this.#text = this.#text.slice(dropped.length);
    this.#begin += dropped.length;
    this.#beginByte += encoder.encode(dropped).length;
  }
  // Drops all; `more` units that have not been added count in the whole text.
  clear(more) {
    this.#begin += this.#text.length + more;
    this.#beginByte += encoder.encode(this.#text).length;
    this.#length = this.#begin;
    this.#byteLength = this.#beginByte;
    this.#tags = new Map();
    this.#text = '';
  }
}

// A text that is still being written. `tell` passes a piece to the module, or null for the end, and returns the sentences
// and findings that it hands over; `forget` and `free` call the module's functions.
class Stream {
  #tell;
  #forget;
  #free;
  #byClause;
  #high = ''; // half of a character at the end of the last piece
  #clauses = [];
  #findings = [];

  constructor({tell, forget, free, by}) {
    this.#tell = tell;
    this.#forget = forget;
    this.#free = free;
    this.#byClause = by === 'clause';
  }

  add(piece) {
    if (typeof piece !== 'string') throw new TypeError('a piece is a string');
    let whole = this.#high + piece;
    this.#high = /[\ud800-\udbff]$/.test(whole) ? whole.slice(-1) : '';
    if (this.#high !== '') whole = whole.slice(0, -1);
    return this.#utterances(this.#tell(whole));
  }

  end() {
    const utterances = this.#high !== '' ? this.#utterances(this.#tell(this.#high)) : [];
    this.#high = '';
    utterances.push(...this.#utterances(this.#tell(null)));
    if (this.#clauses.length + this.#findings.length > 0) utterances.push(this.#take());
    return utterances;
  }

  forget() {
    this.#forget(this.#high);
    this.#high = '';
    this.#take();
  }

  free() {
    this.#free();
  }

  #take() {
    const clauses = this.#clauses;
    const findings = this.#findings;
    this.#clauses = [];
    this.#findings = [];
    const joined = name => clauses.map(clause => clause[name]).join('');
    return {clauses, findings, plain: joined('plain'), source: joined('source'), words: clauses.flatMap(({words}) => words)};
  }

  // An utterance has a word: marks alone belong to the next.
  #utterances({sentences, findings}) {
    const utterances = [];
    const take = number => {
      while (findings.length > 0 && findings[0].sentence === number) {
        this.#findings.push({...findings.shift(), sentence: this.#clauses.length});
      }
    };
    sentences.forEach((clause, number) => {
      take(number);
      this.#clauses.push(clause);
      const isWhole = this.#byClause || clause.endsSentence;
      if (isWhole && this.#clauses.some(({words}) => words.length > 0)) utterances.push(this.#take());
    });
    take(sentences.length);
    return utterances;
  }
}

// The strings of chunks that are strings or UTF-8.
async function* strings(chunks) {
  const utf8 = new TextDecoder();
  for await (const chunk of chunks) yield typeof chunk === 'string' ? chunk : utf8.decode(chunk, {stream: true});
  yield utf8.decode();
}

// The memory and functions of an instance of the module. An instance in which a function threw, since there was no memory or
// stack left, is lost with all that was made in it: renew() makes another, of another generation.
class Memory {
  #instantiate;
  #isLost = false;

  constructor(exports, instantiate) {
    this.#instantiate = instantiate;
    this.generation = Symbol();
    this.#adopt(exports);
  }
  #adopt(exports) {
    this.exports = {};
    for (const [name, value] of Object.entries(exports)) {
      this.exports[name] = typeof value !== 'function' ? value : (...values) => {
        try {
          return value(...values);
        } catch (error) {
          this.#isLost = true;
          this.generation = Symbol();
          throw error;
        }
      };
    }
    this.names = new Map();
    this.room = this.size = 0;
    this.#isLost = false;
  }
  // Makes another instance when this one is lost.
  renew() {
    if (this.#isLost) this.#adopt(this.#instantiate());
  }
  view() {
    // The buffer is another one after the memory has grown.
    if (this.current?.buffer !== this.exports.memory.buffer) this.current = new DataView(this.exports.memory.buffer);
    return this.current;
  }
  u32(at) {
    return this.view().getUint32(at, true);
  }
  bytes(at, length) {
    return new Uint8Array(this.exports.memory.buffer, at, length);
  }
  text(at) {
    const length = this.u32(at + 4);
    return length > 0 ? decoder.decode(this.bytes(this.u32(at), length)) : '';
  }
  // The NUL-terminated text whose address is stored at `at`.
  chars(at) {
    return this.charsOf(this.view(), at);
  }
  charsOf(view, at) {
    const begin = view.getUint32(at, true);
    return view.getUint8(begin) === 0 ? '' : this.charsAt(begin); // as most are
  }
  charsAt(begin) {
    const bytes = new Uint8Array(this.exports.memory.buffer);
    return decoder.decode(bytes.subarray(begin, bytes.indexOf(0, begin)));
  }
  // The name that a function returns for a number; cached.
  name(of, number) {
    let names = this.names.get(of);
    if (names === undefined) this.names.set(of, names = new Map());
    let name = names.get(number);
    if (name === undefined) names.set(number, name = this.charsAt(this.exports[of](number)));
    return name;
  }
  take(size) {
    const at = this.exports.malloc(Math.max(size, 1));
    if (at === 0) throw new RangeError('not enough memory');
    return at;
  }
  // Writes the UTF-8 of a text to `room`, which the next call overwrites. Returns its length in bytes.
  put(text) {
    const most = 3 * text.length;
    if (most > this.size) {
      this.exports.free(this.room);
      this.room = this.size = 0;
      this.room = this.take(most);
      this.size = most;
    }
    const {written} = encoder.encodeInto(text, this.bytes(this.room, this.size));
    return written;
  }
}

class Reader {
  #memory;
  #generation; // of the instance that the reader is in
  #reader = 0;
  #out; // the address of two words for what functions return by pointer
  #capacity;
  #classes;
  #lexicon = '';
  #isFreed = false;

  constructor(memory, options = {}) {
    refuseOthers(options, ['capacity', 'lexicon', 'everyday', 'americanDates']);
    const {capacity = 0, lexicon = '', everyday = false, americanDates = false} = options;
    if (!Number.isInteger(capacity) || capacity < 0 || capacity >= 2 ** 32) throw new TypeError('a capacity is a number of bytes');
    this.#memory = memory;
    this.#capacity = capacity;
    this.#classes = bitsOf(everyday) | (americanDates ? AMERICAN_DATES : 0);
    try {
      this.#start();
      if (lexicon !== '') this.setLexicon(lexicon);
    } catch (error) {
      this.free();
      throw error;
    }
  }

  // Makes the reader, in a new instance when the last one is lost.
  #start() {
    this.#memory.renew();
    this.#generation = this.#memory.generation;
    this.#reader = 0;
    this.#out = 0;
    this.#out = this.#memory.take(8);
    this.#check(this.#memory.exports.kavi_reader_new(this.#capacity, this.#out));
    this.#reader = this.#memory.u32(this.#out);
    if (this.#classes !== 0) {
      this.#check(this.#everyday('kavi_reader_set_everyday')(this.#reader, this.#classes));
    }
    if (this.#lexicon !== '') this.setLexicon(this.#lexicon);
  }

  // A function that only the larger module has.
  #everyday(name) {
    const found = this.#memory.exports[name];
    if (found === undefined) throw new TypeError('a lexicon and everyday English need load({everyday: true})');
    return found;
  }

  setLexicon(lines) {
    const length = this.#put(lines);
    const status = this.#everyday('kavi_reader_set_lexicon')(this.#reader, 0, this.#memory.room, length);
    if (status === BAD_LEXICON) {
      throw new SyntaxError(this.#memory.charsAt(this.#memory.exports.kavi_reader_error(this.#reader)));
    }
    this.#check(status);
    this.#lexicon = lines;
  }

  normalize(text) {
    const length = this.#put(text);
    const {exports} = this.#memory;
    const status = exports.kavi_normalize(this.#reader, this.#memory.room, length, PLAIN, this.#out, this.#out + 4);
    this.#check(status);
    const spoken = this.#memory.u32(this.#out);
    const plain = decoder.decode(this.#memory.bytes(spoken, this.#memory.u32(this.#out + 4)));
    exports.kavi_free(spoken);
    if (status === INCOMPLETE) throw new RangeError('the capacity does not hold what this text is read as');
    return plain;
  }

  read(text, options = {}) {
    refuseOthers(options, ['rules']);
    const {rules = false} = options;
    const length = this.#put(text);
    const {exports} = this.#memory;
    const status = exports.kavi_read(this.#reader, this.#memory.room, length, rules ? WANTS_RUNS : 0, this.#out);
    this.#check(status);
    const bytes = this.#memory.bytes(this.#memory.room, length);
    return {...this.#result(() => new Units(bytes, text)), complete: status === OK};
  }

  // Decodes the result that a function has left.
  #result(makeUnits) {
    const {exports} = this.#memory;
    const result = this.#memory.u32(this.#out);
    const units = makeUnits();
    const sentences = Array.from({length: exports.kavi_result_sentences(result)},
      (_, i) => this.#sentence(exports.kavi_result_sentence(result, i), units));
    const ofFindings = makeUnits();
    const findings = Array.from({length: exports.kavi_result_findings(result)},
      (_, i) => this.#finding(exports.kavi_result_finding(result, i), ofFindings));
    exports.kavi_result_free(result);
    return {sentences, findings};
  }

  async *lines(chunks, options) {
    let rest = '';
    let number = 0;
    const line = text => ({number: ++number, text, result: this.read(text, options)});
    for await (const chunk of strings(chunks)) {
      const pieces = chunk.split('\n');
      pieces[0] = rest + pieces[0];
      rest = pieces.pop();
      for (const piece of pieces) yield line(piece);
    }
    if (rest !== '') yield line(rest);
  }

  openStream(options = {}) {
    refuseOthers(options, ['by', 'rules']);
    const {by = 'sentence', rules = false} = options;
    if (by !== 'sentence' && by !== 'clause') throw new TypeError(`neither by sentence nor by clause: ${by}`);
    this.#put('');
    const memory = this.#memory;
    const {generation, exports} = memory;
    this.#check(exports.kavi_stream_new(this.#reader, rules ? WANTS_RUNS : 0, this.#out));
    const stream = memory.u32(this.#out);
    let isFreed = false;
    const checkIsThere = () => {
      if (isFreed || this.#isFreed) throw new TypeError('the stream is freed');
      if (generation !== memory.generation) throw new RangeError('the stream is lost: there was no memory or stack left');
    };
    const kept = new KeptText();
    const tell = piece => {
      checkIsThere();
      kept.add(piece ?? '');
      const length = memory.put(piece ?? '');
      this.#check(piece === null ? exports.kavi_stream_end(stream, this.#out)
        : exports.kavi_stream_add(stream, memory.room, length, this.#out));
      if (memory.u32(this.#out) === 0) return {sentences: [], findings: []};
      const result = this.#result(kept.unitsMaker());
      const last = result.sentences.at(-1);
      if (last !== undefined) kept.dropBefore(last.offset + last.length);
      return result;
    };
    const forget = more => {
      checkIsThere();
      this.#check(exports.kavi_stream_forget(stream));
      kept.clear(more.length);
    };
    const free = () => {
      if (!isFreed && generation === memory.generation) exports.kavi_stream_free(stream);
      isFreed = true;
    };
    return new Stream({tell, forget, free, by});
  }

  async *stream(pieces, options) {
    const stream = this.openStream(options);
    try {
      for await (const piece of strings(pieces)) yield* stream.add(piece);
      yield* stream.end();
    } finally {
      stream.free();
    }
  }

  transform(options) {
    const stream = this.openStream(options);
    const give = (utterances, controller) => utterances.forEach(utterance => controller.enqueue(utterance));
    return new TransformStream({
      transform: (piece, controller) => give(stream.add(piece), controller),
      flush: controller => {
        give(stream.end(), controller);
        stream.free();
      },
      cancel: () => stream.free(),
    });
  }

  // The rows of kavi-tn's page for a line; in the playground's module only.
  rows(text, line) {
    const length = this.#put(text);
    const rows = this.#memory.exports.kavi_rows(this.#reader, this.#memory.room, length, line);
    if (rows === 0) throw new RangeError('not enough memory');
    const html = this.#memory.charsAt(rows);
    this.#memory.exports.free(rows);
    return html;
  }

  free() {
    if (!this.#isFreed && this.#generation === this.#memory.generation) {
      this.#memory.exports.kavi_reader_free(this.#reader);
      this.#memory.exports.free(this.#out);
    }
    this.#isFreed = true;
  }

  #check(status) {
    if (status === OK || status === INCOMPLETE) return;
    const said = this.#memory.charsAt(this.#memory.exports.kavi_status_text(status));
    throw new RangeError(said);
  }

  // Writes a text to the memory's room, and makes the reader again if its instance is lost. Returns the length in bytes.
  #put(text) {
    if (typeof text !== 'string') throw new TypeError('a text is a string');
    if (this.#isFreed) throw new TypeError('the reader is freed');
    if (this.#generation !== this.#memory.generation) this.#start();
    return this.#memory.put(text);
  }

  #range(at, units) {
    const begin = this.#memory.u32(at);
    const offset = units.at(begin);
    return {offset, length: units.at(begin + this.#memory.u32(at + 4)) - offset};
  }

  #sentence(at, units) {
    const memory = this.#memory;
    const range = this.#range(at + SENTENCE.source, units);
    const plain = memory.text(at + SENTENCE.plain);
    const before = memory.text(at + SENTENCE.before);
    const view = memory.view();
    const words = this.#words(at, plain, before, units, view);
    const runs = Array.from({length: memory.u32(at + SENTENCE.nRuns)}, (_, i) => {
      const run = memory.u32(at + SENTENCE.runs) + i * RUN.size;
      return {...this.#range(run + RUN.source, units), rule: memory.chars(run + RUN.rule),
        reading: memory.text(run + RUN.reading)};
    });
    return {...range, source: units.slice(range),
      normalized: memory.text(at + SENTENCE.normalized), speakable: memory.text(at + SENTENCE.speakable),
      plain, before, head: this.#word(memory.u32(at + SENTENCE.head), '', '', units, view), words, runs,
      endsSentence: memory.u32(at + SENTENCE.endsSentence) !== 0};
  }

  // The plain form is the text before the first word, then each word with the text after it. It has been decoded; where it
  // is ASCII, the words are cut out of it.
  #words(at, plain, before, units, view) {
    const memory = this.#memory;
    const isCut = view.getUint32(at + SENTENCE.plain + 4, true) === plain.length;
    const first = view.getUint32(at + SENTENCE.words, true);
    const words = [];
    let begin = before.length;
    for (let i = 0, n = view.getUint32(at + SENTENCE.nWords, true); i < n; ++i) {
      const word = first + i * WORD.size;
      if (isCut) {
        const end = begin + view.getUint32(word + WORD.text + 4, true);
        const next = end + view.getUint32(word + WORD.after + 4, true);
        words.push(this.#word(word, plain.slice(begin, end), plain.slice(end, next), units, view));
        begin = next;
      } else {
        words.push(this.#word(word, memory.text(word + WORD.text), memory.text(word + WORD.after), units, view));
      }
    }
    return words;
  }

  #word(at, text, after, units, view) {
    const memory = this.#memory;
    const begin = view.getUint32(at + WORD.source, true);
    const offset = units.at(begin);
    const length = units.at(begin + view.getUint32(at + WORD.source + 4, true)) - offset;
    const word = {word: text, after, offset, length,
      pause: memory.name('kavi_pause_name', view.getInt32(at + WORD.pause, true))};
    const nMarks = view.getInt32(at + WORD.nMarks, true);
    if (nMarks > 0) {
      word.marks = Array.from(memory.bytes(at + WORD.marks, nMarks), mark => memory.name('kavi_mark_name', mark));
    }
    const breakTime = memory.charsOf(view, at + WORD.breakTime);
    if (breakTime !== '') word.breaktime = breakTime;
    for (let i = 0; i < ATTRIBUTES; ++i) {
      const value = memory.charsOf(view, at + WORD.attributes + 4 * i);
      if (value !== '') word[memory.name('kavi_attribute_name', i)] = value;
    }
    return word;
  }

  #finding(at, units) {
    const memory = this.#memory;
    const code = memory.u32(at + FINDING.code);
    const begin = memory.u32(at + FINDING.offset);
    const offset = units.at(begin);
    return {code: memory.name('kavi_finding_code', code), message: memory.name('kavi_finding_message', code), offset,
      length: units.at(begin + memory.u32(at + FINDING.length)) - offset,
      sentence: memory.u32(at + FINDING.sentence)};
  }
}

// A load() that takes the bytes of a module from `bytesOf(file, locate)`.
export const loading = bytesOf => async function load(options = {}) {
  refuseOthers(options, ['everyday', 'wasm', 'locate']);
  const {everyday = false, wasm, locate} = options;
  const module = await WebAssembly.compile(await (wasm ?? bytesOf(everyday ? 'kavi-everyday.wasm' : 'kavi.wasm', locate)));
  const imports = {
    env: {emscripten_notify_memory_growth() {}},
    wasi_snapshot_preview1: {proc_exit(status) {
      throw new RangeError(`kavi ended with ${status}`); // there is no more memory
    }},
  };
  const begun = ({exports}) => {
    exports._initialize();
    return exports;
  };
  const memory = new Memory(begun(await WebAssembly.instantiate(module, imports)),
    () => begun(new WebAssembly.Instance(module, imports)));
  let usual;
  const reader = settings => new Reader(memory, settings);
  const theUsual = () => usual ??= reader({everyday});
  return {readingsVersion: memory.exports.kavi_readings_version(), reader,
    normalize: text => theUsual().normalize(text), read: (text, settings) => theUsual().read(text, settings),
    lines: (chunks, settings) => theUsual().lines(chunks, settings),
    stream: (pieces, settings) => theUsual().stream(pieces, settings)};
};
