// The layout that kavi.js reads, where it is compiled.

#include <cstddef>

#include "kavi.h"

static_assert(sizeof(kavi_range) == 8 && sizeof(kavi_text) == 8 &&
              offsetof(kavi_text, length) == 4);

static_assert(sizeof(kavi_word) == 76 && offsetof(kavi_word, text) == 0);
static_assert(offsetof(kavi_word, after) == 8 && offsetof(kavi_word, source) == 16);
static_assert(offsetof(kavi_word, pause) == 24 && offsetof(kavi_word, n_marks) == 28);
static_assert(offsetof(kavi_word, marks) == 32 && offsetof(kavi_word, break_time) == 44);
static_assert(offsetof(kavi_word, attributes) == 48 && KAVI_ATTRIBUTES == 7);

static_assert(offsetof(kavi_sentence, source) == 0 && offsetof(kavi_sentence, normalized) == 8);
static_assert(offsetof(kavi_sentence, speakable) == 16 && offsetof(kavi_sentence, plain) == 24);
static_assert(offsetof(kavi_sentence, before) == 32 && offsetof(kavi_sentence, head) == 40);
static_assert(offsetof(kavi_sentence, words) == 44 && offsetof(kavi_sentence, n_words) == 48);
static_assert(offsetof(kavi_sentence, runs) == 52 && offsetof(kavi_sentence, n_runs) == 56);
static_assert(offsetof(kavi_sentence, ends_sentence) == 60);

static_assert(sizeof(kavi_run) == 20 && offsetof(kavi_run, source) == 0);
static_assert(offsetof(kavi_run, rule) == 8 && offsetof(kavi_run, reading) == 12);

static_assert(offsetof(kavi_finding, code) == 0 && offsetof(kavi_finding, offset) == 4);
static_assert(offsetof(kavi_finding, length) == 8 && offsetof(kavi_finding, sentence) == 12);
