/** English text normalisation for text to speech. All offsets and lengths are in UTF-16 units, as in slice(). */

/** The classes of everyday English. */
export const EVERYDAY: readonly string[];

export interface Word {
  /** Empty for the head of a sentence. */
  word: string;
  /** As written up to the next word: punctuation and blanks. */
  after: string;
  /** What it was read from; the words of one number share it. */
  offset: number;
  length: number;
  /** The pause after it, such as "word", "phrase" or "intonation phrase, forced". */
  pause: string;
  /** The marks after it, by the engine's names; absent for none. */
  marks?: string[];
  /** The break after it, in milliseconds as written; absent for none. */
  breaktime?: string;
  emphasis?: string;
  pitch?: string;
  rate?: string;
  volume?: string;
  spectrum?: string;
  poem?: string;
  quill_effect?: string;
}

/** A range that one rule has read. */
export interface Run {
  offset: number;
  length: number;
  rule: string;
  reading: string;
}

export interface Sentence {
  source: string;
  offset: number;
  length: number;
  /** The sentence as cut, with abbreviations written out. */
  normalized: string;
  /** Words and punctuation tags. */
  speakable: string;
  /** `before`, then `word` and `after` of each word; of all sentences together what normalize() returns. */
  plain: string;
  /** As written before the first word: blanks and punctuation. */
  before: string;
  /** Marks and a break before the first word. */
  head: Word;
  words: Word[];
  /** Empty unless asked for. */
  runs: Run[];
  /** False for a clause of a sentence that goes on. */
  endsSentence: boolean;
}

export interface Finding {
  code: string;
  message: string;
  offset: number;
  length: number;
  /** The number, from 0, of the sentence it belongs to; the number of sentences for one after the last. */
  sentence: number;
}

export interface Result {
  sentences: Sentence[];
  findings: Finding[];
  /** False when the capacity did not hold all of it. */
  complete: boolean;
}

export interface Line {
  /** From 1. */
  number: number;
  text: string;
  result: Result;
}

/** What a stream hands over at once: a sentence, or a clause of one. Offsets count from the begin of the stream. */
export interface Utterance {
  clauses: Sentence[];
  /** Each `sentence` is the number of one of the clauses. */
  findings: Finding[];
  /** What is spoken; those of all utterances, one after the other, are what normalize() returns. */
  plain: string;
  source: string;
  words: Word[];
}

export interface StreamOptions extends ReadOptions {
  /** What is handed over: whole sentences, unless asked for clauses, which come with the least delay. */
  by?: 'sentence' | 'clause';
}

/** A text that is still being written. */
export interface Stream {
  /**
   * The text goes on with this piece, which may end inside a word, a tag or a character. Returns what nothing that may
   * follow can change any more. A RangeError after the end.
   */
  add(piece: string): Utterance[];
  /** The text ends here: the rest of it, which may be findings alone. A RangeError after the end. */
  end(): Utterance[];
  /** Drops what has not been handed over. What is added next begins a new text; its offsets go on. Also after the end. */
  forget(): void;
  /** Frees the stream. A TypeError for calls after that. */
  free(): void;
}

export interface ReadOptions {
  /** Sentences tell which rule has read what. */
  rules?: boolean;
}

export interface ReaderOptions {
  /** The most bytes that the records of a sentence may take; 0: no limit. */
  capacity?: number;
  /** Lines of what is written, a tab, and what is spoken. A bad line is a SyntaxError. */
  lexicon?: string;
  /** All classes of everyday English, or those that are named. */
  everyday?: boolean | string | readonly string[];
  /** 3/1/2020 is March first. */
  americanDates?: boolean;
}

export interface Reader {
  /** What is spoken, with punctuation and blanks as written. A RangeError where the capacity does not hold it. */
  normalize(text: string): string;
  read(text: string, options?: ReadOptions): Result;
  /** Reads each line of a text that comes in pieces, strings or UTF-8; nothing but the last line is kept. */
  lines(chunks: Iterable<string | Uint8Array> | AsyncIterable<string | Uint8Array>, options?: ReadOptions): AsyncGenerator<Line>;
  /** A stream that reads as this reader does now. */
  openStream(options?: StreamOptions): Stream;
  /** The utterances of a text that comes in pieces, strings or UTF-8. Whoever stops the loop drops the rest. */
  stream(pieces: Iterable<string | Uint8Array> | AsyncIterable<string | Uint8Array>, options?: StreamOptions): AsyncGenerator<Utterance>;
  /** The same to pipe strings through: `texts.pipeThrough(reader.transform())`. */
  transform(options?: StreamOptions): TransformStream<string, Utterance>;
  /** Replaces the lexicon. A SyntaxError when a line is wrong: then the last one stays. */
  setLexicon(lines: string): void;
  /** Frees the reader and its memory. A TypeError for calls after that. */
  free(): void;
}

export interface Kavi {
  /** The same number has read the same text the same. */
  readonly readingsVersion: number;
  reader(options?: ReaderOptions): Reader;
  /** Those of a reader without options; after load({everyday: true}), of one with everyday English. */
  normalize(text: string): string;
  read(text: string, options?: ReadOptions): Result;
  lines: Reader['lines'];
  stream: Reader['stream'];
}

export interface LoadOptions {
  everyday?: boolean;
  /** The bytes of kavi.wasm or kavi-everyday.wasm. */
  wasm?: BufferSource | Promise<BufferSource>;
  /** Where a file is, kavi.wasm or kavi-everyday.wasm; node takes a path, too. "kavi-tn/inline" looks nowhere. */
  locate?: (file: string) => string | URL;
}

/**
 * Loads the engine, or, with `everyday`, the engine with everyday English and lexicons. The modules are looked for beside
 * this file unless `locate` or `wasm` say otherwise. Throws what fetch() or the file system throws, and an Error that
 * names the file where a server has another answer than that file.
 *
 * A call that has no memory or stack left throws, and all readers read the next text. Options that are not listed
 * here are a TypeError.
 */
export function load(options?: LoadOptions): Promise<Kavi>;
