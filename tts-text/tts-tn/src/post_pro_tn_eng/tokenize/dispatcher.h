// The dispatcher: decides, token by token, how a sentence is spoken.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include <string_view>

#include "../common/bounded_text.h"
#include "../common/reading.h"
#include "mark_readings.h"
#include "reading_observer.h"
#include "token_window.h"

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
    full,   // an append did not fit; what came before it stands in the output
};

// One walk over the tokens of a sentence, step by step. A step reads those from first() to before
// end() by rule(). Nothing of it outlives the walk.
class SectionDispatcher {
  public:
    // Everything is appended to `output`, a text in a buffer of SZ_TEXT_MAX_LEN bytes.
    SectionDispatcher(TokenWindow& tokens, BoundedText& output);
    SectionDispatcher(const SectionDispatcher&) = delete;
    SectionDispatcher& operator=(const SectionDispatcher&) = delete;

    // Reads from `first`, a token of the row, to the end of the sentence, or as far as the walk
    // goes on. After that it may go on from another token. `observer` is shown each step; it may be
    // null.
    Outcome walk(const Token* first, ReadingObserver* observer);

    Outcome outcome() const { return outcome_; }

    // ---- of the last step ----

    ReadingRule rule() const { return rule_; }
    const Token* first() const { return first_; }
    const Token* end() const { return end_; }  // after the last consumed

    // What was read by a reader: whether it was cut, and which digits are in it.
    const Reading& reading() const { return reading_; }

    // How long the output is after it.
    int output_length() const { return output_.length(); }

    // Whether all of the walk's readings were words and tags.
    bool is_all_words() const { return reading_.is_all_words(); }

  private:
    // ---- one for each kind of section and pattern: the last token consumed, or the one after the
    // last section ----
    inline const Token* step();
    inline const Token* word();
    inline const Token* telephone();
    inline const Token* number();
    inline const Token* plain_number();
    inline const Token* clock_time();
    inline const Token* money(const Token* amount);
    inline const Token* mark();
    inline const Token* smaller();
    inline const Token* apostrophe();

    // Appends to the output; the outcome tells whether it fitted.
    inline void append(std::string_view words);
    inline void append_spaced(std::string_view words);
    inline const Token* append_mark(MarkWords words, bool spaced);

    // Appends a step's words, or those of the reading, and says what the step was.
    inline const Token* read_as(ReadingRule rule, std::string_view words, const Token* last);
    inline const Token* reading_as(ReadingRule rule, const Token* last);
    inline const Token* read(ReadingRule rule, Reader* reader, const Token* pattern);
    inline const Token* read_mark(ReadingRule rule, MarkReader* reader);

    TokenWindow& tokens_;
    BoundedText& output_;
    char reading_text_[WORD_MAX_LEN];
    Reading reading_{reading_text_, 0};
    ReadingRule rule_ = ReadingRule::silent;
    Outcome outcome_ = Outcome::go_on;
    const Token* first_ = nullptr;
    const Token* end_ = nullptr;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_DISPATCHER_H
