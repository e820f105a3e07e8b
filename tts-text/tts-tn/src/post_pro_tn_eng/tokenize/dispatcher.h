// The dispatcher: decides, section by section, how a sentence is spoken.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include <string_view>

#include "../common/bounded_text.h"
#include "../common/reading.h"
#include "post_pro_tn_eng.h"
#include "section_window.h"

namespace kavi::tn {

// How the sections of one step were read.
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
    ended,  // a reader ran out of sections: the rest is not read
    full,   // an append did not fit; what came before it stands in the output
};

// One walk over the sections of a sentence, step by step. A step reads the sections from first()
// to last() by rule(). Nothing of it outlives the walk.
class SectionDispatcher {
  public:
    // Over a queue from `head` on, which may be null; everything is appended to `output`, a text in
    // a buffer of SZ_TEXT_MAX_LEN bytes.
    // cppcheck-suppress uninitMemberVar ; the reading makes its text empty
    SectionDispatcher(Section* head, BoundedText& output) : output_(output), section_(head) {}

    // Over the sections of a text that begin at `text`, as far as the window reaches.
    // cppcheck-suppress uninitMemberVar ; the same
    SectionDispatcher(const char* text, SectionWindow& window, BoundedText& output)
        : output_(output), window_(&window), section_(window.begin(text)) {}

    SectionDispatcher(const SectionDispatcher&) = delete;
    SectionDispatcher& operator=(const SectionDispatcher&) = delete;

    // Takes the next step. False when there is none: the sections have all been read, or the last
    // step was not to go on.
    bool next();

    Outcome outcome() const { return outcome_; }

    // ---- of the last step ----

    ReadingRule rule() const { return rule_; }
    const Section* first() const { return first_; }

    // The last section consumed; null when a reader ran out of them.
    const Section* last() const { return last_; }

    // What was read by a reader: whether it was cut, and which digits are in it.
    const Reading& reading() const { return reading_; }

    // How much the output held before it.
    int output_before() const { return output_before_; }

    // Whether all of the walk's readings were words and tags.
    bool is_all_words() const { return all_words_; }

  private:
    // "The next section of a kind" of a queue, asked again and again while the walk moves on: no
    // stretch of the queue is searched twice.
    class NextSection {
      public:
        template <typename Predicate>
        const Section* find(const Section* from, Predicate is_wanted) {
            if (!known_) {
                while (from != nullptr && !is_wanted(from)) from = from->m_pnext;
                found_ = from;
                known_ = true;
            }
            return found_;
        }
        void pass(const Section* section) {
            if (section == found_) known_ = false;
        }

      private:
        const Section* found_ = nullptr;
        bool known_ = false;
    };

    // ---- one for each kind of section and pattern: the last section consumed, or null ----
    inline Section* step();
    inline Section* word();
    inline Section* telephone();
    inline Section* number();
    inline Section* plain_number();
    inline Section* clock_time();
    inline Section* money(Section* amount);
    inline Section* mark();
    inline Section* bracket();
    inline Section* plus_sign();
    inline Section* smaller();

    inline Section* section_after(const Section* last);
    inline bool is_amount_before_dollar();
    bool greater_follows(const Section* next);

    // Appends to the output; the outcome tells whether it fitted.
    inline void append(std::string_view words);
    inline void append_spaced(std::string_view words);

    // Appends a step's words, or those of the reading, and says what the step was.
    inline Section* read_as(ReadingRule rule, std::string_view words, Section* last);
    inline Section* reading_as(ReadingRule rule, Section* last);

    BoundedText& output_;
    SectionWindow* window_ = nullptr;  // null for a queue
    Section* section_;                 // the one that the next step begins with
    char reading_text_[WORD_MAX_LEN];
    Reading reading_{emptied(reading_text_)};
    ReadingRule rule_ = ReadingRule::silent;
    Outcome outcome_ = Outcome::go_on;
    const Section* first_ = nullptr;
    const Section* last_ = nullptr;
    int output_before_ = 0;
    bool all_words_ = true;
    NextSection amount_end_;  // of a queue: the next one that is no part of an amount of money
    NextSection greater_;     // likewise, the next ">"
};

}  // namespace kavi::tn

#endif  // KAVI_TN_DISPATCHER_H
