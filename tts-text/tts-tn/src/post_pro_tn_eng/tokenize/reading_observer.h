// Who looks on while a sentence is read.
#ifndef KAVI_TN_READING_OBSERVER_H
#define KAVI_TN_READING_OBSERVER_H

#include <string_view>

#include "../common/reading.h"
#include "../readers/tokens.h"

namespace kavi::tn {

// How the tokens of one step were read.
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
    silent,  // a blank, or a byte that nothing is written for
};

// Whether a walk goes on after a step.
enum class Outcome {
    go_on,
    ended,  // a reader ran out of tokens: the rest is not read
    full,   // an append did not fit; what came before it is in the output
};

// One step of a walk over tokens.
struct ReadingStep {
    ReadingRule rule;
    Outcome outcome;
    const Token* first;
    const Token* end;        // after the last consumed
    const Reading& reading;  // what a reader read: whether it was cut, which digits are in it
    int output_length;       // after the step
};

// Is shown what is read as what, in order: together it is the sentence, but for blanks. A reading
// is written where the one before it ends.
struct ReadingObserver {
    // `source`, a word, a stretch of words or a mark that reads the same anywhere, was
    // written to the output, which is so long now.
    void (*on_plain_text)(void* context, std::string_view source, int output_length);
    void (*on_step)(void* context, const ReadingStep& step);
    void* context;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_READING_OBSERVER_H
