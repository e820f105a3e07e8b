// The observer of reading: receives what was read as what. Explanations, findings and offsets of
// words come from it.
#ifndef KAVI_TN_READING_OBSERVER_H
#define KAVI_TN_READING_OBSERVER_H

#include <string_view>

#include "../common/reading.h"
#include "../readers/tokens.h"

namespace kavi::tn {

// The rule by which the tokens of one step were read.
enum class ReadingRule {
    word,
    capital_letters,
    month,
    telephone_label,
    telephone_number,
    separated_number,
    ordinal,
    date,
    fraction,
    money,
    decimal,
    clock_time,
    year,
    ordinal_day,
    cardinal,
    markup_tag,
    bracket,
    plus_sign,
    contraction,
    mark,
    silent,  // a blank, or a byte without a reading
};

// Whether a walk goes on after a step.
enum class Outcome {
    go_on,
    ended,  // the tokens ended inside a pattern
    full,   // an append did not fit; the output keeps those before it
};

// One step of a walk over tokens.
struct ReadingStep {
    ReadingRule rule;
    Outcome outcome;
    const Token* first;
    const Token* end;        // after the last token consumed
    const Reading& reading;  // of the reader: whether it was cut, which digits it has
    int output_length;       // of the output after the step, in bytes
};

// Receives, in order, what was read of the sentence: all of it, except blanks in plain text. Each
// reading begins in the output where the one before it ends.
struct ReadingObserver {
    // The output, now `output_length` bytes long, has the reading of `source`: a run of words, a
    // word, a tag or a mark of plain text.
    void (*on_plain_text)(void* context, std::string_view source, int output_length);
    void (*on_step)(void* context, const ReadingStep& step);
    void* context;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_READING_OBSERVER_H
