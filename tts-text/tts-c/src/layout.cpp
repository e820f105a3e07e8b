// The layout of the structures of kavi.h, which stays as it is as long as the library is
// libkavi.so.1. Programs in other languages have it in numbers: kavi.js those for pointers of four
// bytes.

#include <cstddef>

#include "kavi.h"

namespace {

constexpr std::size_t P = sizeof(void*);

// Where a pointer may be from `offset` on.
constexpr std::size_t pointer_from(std::size_t offset) {
    return (offset + P - 1) / P * P;
}

static_assert(sizeof(size_t) == P && sizeof(int) == 4);

static_assert(sizeof(kavi_range) == 2 * P && sizeof(kavi_text) == 2 * P);
static_assert(offsetof(kavi_range, length) == P && offsetof(kavi_text, length) == P);

static_assert(offsetof(kavi_word, text) == 0 && offsetof(kavi_word, after) == 2 * P);
static_assert(offsetof(kavi_word, source) == 4 * P && offsetof(kavi_word, pause) == 6 * P);
static_assert(offsetof(kavi_word, n_marks) == 6 * P + 4 && offsetof(kavi_word, marks) == 6 * P + 8);
static_assert(offsetof(kavi_word, break_time) == pointer_from(6 * P + 20));
static_assert(offsetof(kavi_word, attributes) == offsetof(kavi_word, break_time) + P);
static_assert(sizeof(kavi_word) == offsetof(kavi_word, attributes) + 7 * P);

static_assert(offsetof(kavi_sentence, source) == 0 && offsetof(kavi_sentence, normalized) == 2 * P);
static_assert(offsetof(kavi_sentence, speakable) == 4 * P);
static_assert(offsetof(kavi_sentence, plain) == 6 * P && offsetof(kavi_sentence, before) == 8 * P);
static_assert(offsetof(kavi_sentence, head) == 10 * P && offsetof(kavi_sentence, words) == 11 * P);
static_assert(offsetof(kavi_sentence, n_words) == 12 * P);
static_assert(offsetof(kavi_sentence, runs) == 13 * P && offsetof(kavi_sentence, n_runs) == 14 * P);
static_assert(offsetof(kavi_sentence, ends_sentence) == 15 * P && sizeof(kavi_sentence) == 16 * P);

static_assert(offsetof(kavi_run, source) == 0 && offsetof(kavi_run, rule) == 2 * P);
static_assert(offsetof(kavi_run, reading) == 3 * P && sizeof(kavi_run) == 5 * P);

static_assert(offsetof(kavi_finding, code) == 0 && offsetof(kavi_finding, offset) == P);
static_assert(offsetof(kavi_finding, length) == 2 * P);
static_assert(offsetof(kavi_finding, sentence) == 3 * P && sizeof(kavi_finding) == 4 * P);

}  // namespace
