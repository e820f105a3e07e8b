/* kavi for programs in C, and in every language that can call C: English text in, words out.
 *
 *     kavi_reader* reader;
 *     if (kavi_reader_new(0, &reader) != KAVI_OK) return 1;
 *
 *     kavi_result* result;
 *     kavi_read(reader, text, length, 0, &result);
 *     for (size_t i = 0; i < kavi_result_sentences(result); ++i)
 *         fputs(kavi_result_sentence(result, i)->plain.data, stdout);
 *
 *     kavi_result_free(result);
 *     kavi_reader_free(reader);
 *
 * Texts have any bytes and any length. Texts that are returned are NUL-terminated, with the length
 * beside a text that may be long. All offsets and lengths are in bytes. No function keeps a pointer
 * that it was given after it has returned. One reader serves one thread at a time; readers share
 * nothing, and a result can be read by several threads.
 *
 * Every function with a kavi_status returns KAVI_BAD_ARGUMENT for a null pointer, unless its
 * contract allows one, and for a number without a meaning. A text or piece of length 0 may be null.
 * Functions that make something or read may return KAVI_NO_MEMORY, functions of a reader KAVI_BUSY.
 * The contracts below name what else they return.
 *
 * Sizes, fields and values stay as they are as long as the library is libkavi.so.1. New values of
 * enumerations may come at their ends. */
#ifndef KAVI_H
#define KAVI_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__) && !defined(__EMSCRIPTEN__)
#define KAVI_API __attribute__((visibility("default")))
#else
#define KAVI_API
#endif

/* The version of this header. */
#define KAVI_VERSION_MAJOR 0
#define KAVI_VERSION_MINOR 1
#define KAVI_VERSION_PATCH 0
#define KAVI_VERSION "0.1.0"

/* The version of the library that runs, as KAVI_VERSION; a constant text. */
KAVI_API const char* kavi_version(void);

/* The version of the readings. Two libraries with the same number read every text the same. */
KAVI_API int32_t kavi_readings_version(void);

typedef enum kavi_status {
    KAVI_OK,
    KAVI_INCOMPLETE,   /* read, except pieces that the capacity does not hold; findings say where */
    KAVI_STOPPED,      /* a handler returned 0, or threw an exception of C++ */
    KAVI_NO_MEMORY,    /* the system has none; the reader can be used again */
    KAVI_BAD_ARGUMENT, /* a null pointer where none may be, or a number without a meaning */
    KAVI_BAD_LEXICON,  /* kavi_reader_error() has file, line and fault */
    KAVI_BUSY,         /* called from a handler of the same reader */
    KAVI_ENDED,        /* the text of the stream has ended; kavi_stream_forget() begins another */
} kavi_status;

/* What a status means, in a few words; "unknown" for any other number. A constant text. */
KAVI_API const char* kavi_status_text(kavi_status status);

/* ---- what is read ---- */

/* A range of the text that was given. */
typedef struct kavi_range {
    size_t offset;
    size_t length;
} kavi_range;

typedef struct kavi_text {
    const char* data; /* NUL-terminated */
    size_t length;    /* without the NUL */
} kavi_text;

/* A markup attribute of a word. kavi_attribute_name() has their names. */
typedef enum kavi_attribute {
    KAVI_EMPHASIS,
    KAVI_PITCH,
    KAVI_RATE,
    KAVI_VOLUME,
    KAVI_SPECTRUM,
    KAVI_POEM,
    KAVI_QUILL_EFFECT,
} kavi_attribute;
#define KAVI_ATTRIBUTES 7
#define KAVI_MARKS_MAX 10

typedef struct kavi_word {
    kavi_text text;                    /* empty for the head of a sentence */
    kavi_text after;                   /* as written up to the next word: punctuation, blanks */
    kavi_range source;                 /* the words of one number share it */
    int32_t pause;                     /* after the word; kavi_pause_name() */
    int32_t n_marks;                   /* after the word, in order; kavi_mark_name() */
    uint8_t marks[KAVI_MARKS_MAX + 2]; /* the first n_marks */
    const char* break_time;            /* after the word, in milliseconds as written; "": none */
    const char* attributes[KAVI_ATTRIBUTES]; /* by kavi_attribute, as written; "": not set */
} kavi_word;

/* A range that one rule has read. */
typedef struct kavi_run {
    kavi_range source;
    const char* rule;  /* in a few words, such as "date" or "everyday: currencies" */
    kavi_text reading; /* what was written for it */
} kavi_run;

typedef struct kavi_sentence {
    kavi_range source;     /* begins where that of the last sentence ended, or, with
                              KAVI_INCOMPLETE, after a piece that was passed over */
    kavi_text normalized;  /* the sentence as cut, with abbreviations written out */
    kavi_text speakable;   /* words and punctuation tags */
    kavi_text plain;       /* before, then text and after of each word; those of all sentences, one
                              after the other, are the plain form of the text */
    kavi_text before;      /* as written before the first word: blanks, punctuation */
    const kavi_word* head; /* what comes before the first word: marks and a break; no text */
    const kavi_word* words;
    size_t n_words;
    const kavi_run* runs; /* null without KAVI_RUNS */
    size_t n_runs;
    int32_t ends_sentence; /* 1, or 0 for a clause of a sentence that goes on */
} kavi_sentence;

typedef struct kavi_finding {
    int32_t code; /* kavi_finding_code(), kavi_finding_message() */
    size_t offset;
    size_t length;   /* of what is not spoken, or of a foreign tag; else 1, or 0 for a tag that is
                        not in the text, which closes a span where the text was cut */
    size_t sentence; /* the number, from 0, of its sentence; the number of sentences for a finding
                        after the last */
} kavi_finding;

/* Names for people and programs, which stay as they are; constant texts. "unknown" for any other
 * number. */
KAVI_API const char* kavi_pause_name(int32_t pause);
KAVI_API const char* kavi_mark_name(int32_t mark);
KAVI_API const char* kavi_attribute_name(kavi_attribute attribute);
KAVI_API const char* kavi_finding_code(int32_t code);
KAVI_API const char* kavi_finding_message(int32_t code);

/* ---- readers ---- */

typedef struct kavi_reader kavi_reader;

/* Makes a reader, which the caller frees. Blocks in use of its arena, for the records of a
 * sentence, total at most `capacity` bytes; 0: no limit. `*reader` is null unless KAVI_OK is
 * returned. */
KAVI_API kavi_status kavi_reader_new(size_t capacity, kavi_reader** reader);

/* Does nothing for null. Not to be called from a handler of the reader. */
KAVI_API void kavi_reader_free(kavi_reader* reader);

/* Replaces the reader's lexicon: lines in UTF-8 of what is written, a tab, and the words that are
 * spoken for it. `name` is the file's name in errors; null: "lexicon". `length` 0: no lexicon.
 * KAVI_BAD_LEXICON when a line is wrong. Unless KAVI_OK is returned, the last lexicon stays. */
KAVI_API kavi_status kavi_reader_set_lexicon(kavi_reader* reader, const char* name,
                                             const char* bytes, size_t length);

/* Classes of everyday English: rules that rewrite a text before the engine reads it. */
enum {
    KAVI_TITLES = 1 << 0,
    KAVI_CONTRACTIONS = 1 << 1,
    KAVI_CURRENCIES = 1 << 2,
    KAVI_UNITS = 1 << 3,
    KAVI_YEARS = 1 << 4,
    KAVI_TIMES = 1 << 5,
    KAVI_ADDRESSES = 1 << 6,
    KAVI_ROMAN = 1 << 7,
    KAVI_NUMBERS = 1 << 8,
    KAVI_LETTERS = 1 << 9,
    KAVI_SHIELDS = 1 << 10,
    KAVI_MARKS = 1 << 11,
    KAVI_ALL_EVERYDAY = (1 << 12) - 1,
    KAVI_AMERICAN_DATES = 1 << 16 /* with KAVI_YEARS: 3/1/2020 is March first */
};

/* Turns on the classes whose sum is `classes`, and all others off. All are off at first. */
KAVI_API kavi_status kavi_reader_set_everyday(kavi_reader* reader, uint32_t classes);

/* The class of this name: KAVI_UNITS for "units", and so on, as kavi-tn and the packages for Python
 * and JavaScript have them. 0 for any other name, and for null. */
KAVI_API uint32_t kavi_everyday_class(const char* name);

/* What was wrong with the last lexicon, a line "NAME:LINE: fault" for each of up to 20 faults; ""
 * when nothing was, and for null. Valid until the next call with the reader. */
KAVI_API const char* kavi_reader_error(const kavi_reader* reader);

/* ---- reading ---- */

enum {
    KAVI_RUNS = 1 /* sentences have runs: which rule has read what */
};

typedef struct kavi_result kavi_result;

/* Reads a text. `wanted` is 0 or KAVI_RUNS. With KAVI_OK and KAVI_INCOMPLETE, `*result` is what was
 * read, which the caller frees; it needs neither the text nor the reader. Otherwise it is null. */
KAVI_API kavi_status kavi_read(kavi_reader* reader, const char* text, size_t length,
                               uint32_t wanted, kavi_result** result);

/* The numbers of sentences and findings; 0 for null. */
KAVI_API size_t kavi_result_sentences(const kavi_result* result);
KAVI_API size_t kavi_result_findings(const kavi_result* result);

/* Numbers count from 0. Valid as long as the result; null for a number that is too great, and when
 * `result` is null. */
KAVI_API const kavi_sentence* kavi_result_sentence(const kavi_result* result, size_t number);
KAVI_API const kavi_finding* kavi_result_finding(const kavi_result* result, size_t number);

/* Does nothing for null. */
KAVI_API void kavi_result_free(kavi_result* result);

/* Called for each sentence, and for each finding before its sentence; either may be null. Their
 * arguments are valid until they return. They return whether to go on: 0 stops. `user` is their
 * first argument. */
typedef struct kavi_handlers {
    int (*on_sentence)(void* user, const kavi_sentence* sentence);
    int (*on_finding)(void* user, const kavi_finding* finding);
    void* user;
} kavi_handlers;

/* Reads a text and hands over each sentence and finding at once, so that memory does not grow with
 * the text. KAVI_STOPPED when a handler stopped it. Otherwise as kavi_read(). */
KAVI_API kavi_status kavi_read_each(kavi_reader* reader, const char* text, size_t length,
                                    uint32_t wanted, const kavi_handlers* handlers);

typedef enum kavi_form {
    KAVI_SPEAKABLE, /* words and punctuation tags, a line for each sentence but the last without its
                       end */
    KAVI_PLAIN,     /* words, with punctuation and blanks as written */
} kavi_form;

/* Reads a text and gives only what is spoken, in a kavi_form: `*spoken` is NUL-terminated and is
 * freed by kavi_free(), `*n_spoken` its length. `n_spoken` may be null; `*n_spoken` is 0 where
 * `*spoken` is null. Otherwise as kavi_read(). */
KAVI_API kavi_status kavi_normalize(kavi_reader* reader, const char* text, size_t length,
                                    uint32_t form, char** spoken, size_t* n_spoken);

/* Does nothing for null. */
KAVI_API void kavi_free(char* spoken);

/* ---- a text that is still being written ---- */

typedef struct kavi_stream kavi_stream;

/* Makes a stream, which the caller frees. It reads as the reader does now, with an arena of its own
 * of the reader's capacity, and does not need the reader any more. `wanted` as for kavi_read().
 * `*stream` is null unless KAVI_OK is returned. One stream serves one thread at a time. */
KAVI_API kavi_status kavi_stream_new(const kavi_reader* reader, uint32_t wanted,
                                     kavi_stream** stream);

/* The text goes on with this piece, of any bytes and any length: it may end inside a word, a tag or
 * a character. With KAVI_OK, `*result` has the sentences and findings that nothing that follows can
 * change any more, each once, and is freed by the caller; it is null when there are none. All
 * results of a text together are what kavi_read() gives for the whole; offsets count from the begin
 * of the stream, a finding's sentence within the result. KAVI_ENDED after the end. `*result` is
 * null unless KAVI_OK is returned. After KAVI_NO_MEMORY the text has ended. */
KAVI_API kavi_status kavi_stream_add(kavi_stream* stream, const char* piece, size_t length,
                                     kavi_result** result);

/* The text ends here: as kavi_stream_add() for the rest of it. KAVI_INCOMPLETE, also with a result,
 * where a piece of the text was passed over. */
KAVI_API kavi_status kavi_stream_end(kavi_stream* stream, kavi_result** result);

/* Drops what has not been handed over. What is added next begins a new text, with no span open; its
 * offsets go on. Also after the end. */
KAVI_API kavi_status kavi_stream_forget(kavi_stream* stream);

/* Does nothing for null. */
KAVI_API void kavi_stream_free(kavi_stream* stream);

#ifdef __cplusplus
}
#endif

#endif /* KAVI_H */
