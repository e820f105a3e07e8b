// The dispatcher: decides, section by section, how a sentence is spoken.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include <string_view>

#include "../common/bounded_text.h"
#include "post_pro_tn_eng.h"

namespace kavi {

// How one step of the dispatcher read what it consumed, or why it was the last.
enum class ReadingRule {
    full,  // an append did not fit
    end,   // a reader ended the walk
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

// One walk over one queue, step by step: `section` is what the step will look at first, and after
// the step, what it consumed last. Nothing of it outlives the walk.
class SectionDispatcher {
  public:
    // Everything is appended to `output`, a text in a buffer of SZ_TEXT_MAX_LEN bytes.
    SectionDispatcher(PostProTnEng& engine, Section* head, tn::BoundedText& output);

    // Walks to the end of the queue, or as far as a rule lets it. The rule of the last step.
    ReadingRule run();

    // For a walk of one's own: while there is a section, step, and go on from it unless the rule
    // was full or end.
    Section* section() const { return section_; }
    ReadingRule step();
    void advance(const Section* first_of_step);

  private:
    // "The next section of a kind", asked again and again while the walk moves on: no stretch of
    // the queue is searched twice.
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

    ReadingRule word();
    ReadingRule telephone();
    ReadingRule number();
    ReadingRule date();
    ReadingRule money(Section* amount);
    ReadingRule clock_time();
    ReadingRule plain_number();
    ReadingRule mark();
    ReadingRule smaller();

    ReadingRule append(std::string_view words, ReadingRule rule);
    ReadingRule append_spaced(std::string_view words, ReadingRule rule);
    ReadingRule append_reading(ReadingRule rule);
    ReadingRule append_reading(Section* last, ReadingRule rule);
    bool is_amount_before_dollar();
    bool is_month(Section* section);

    PostProTnEng& engine_;
    tn::BoundedText& output_;
    Section* section_;            // the one at hand
    char reading_[WORD_MAX_LEN];  // what the reader of this step wrote
    NextSection amount_end_;      // the next one that is no part of an amount of money
    NextSection greater_;         // the next ">"
};

}  // namespace kavi

#endif  // KAVI_TN_DISPATCHER_H
