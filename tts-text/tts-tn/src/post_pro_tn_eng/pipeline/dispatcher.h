// The dispatcher: decides, section by section, how a sentence is spoken.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include <string_view>

#include "../common/bounded_text.h"
#include "post_pro_tn_eng.h"

namespace kavi {

// One walk over one queue. Nothing of it outlives the walk.
class SectionDispatcher {
  public:
    // Everything is appended to `sz_target_text`, a text in a buffer of SZ_TEXT_MAX_LEN bytes.
    SectionDispatcher(PostProTnEng& engine, Section* head, char* sz_target_text);

    // 0 when the queue has been read or a reader ended it, -1 when an append did not fit.
    int run();

  private:
    enum class Step { on, end, full };

    // "The next section of a kind", asked again and again while the walk moves on: no stretch of
    // the queue is searched twice.
    class NextSection {
      public:
        template <typename Predicate>
        const Section* find(const Section* from, Predicate is_wanted) {
            if (!known_) {
                while (from != nullptr && !is_wanted(from))
                    from = from->m_pnext;
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

    Step dispatch();
    Step word();
    Step telephone();
    Step number();
    Step clock_time();
    Step plain_number();
    Step mark();
    Step dollars();
    Step smaller();

    Step append(std::string_view words);
    Step append_reading();
    Step append_reading(Section* last);
    bool is_amount_before_dollar();
    bool is_month(Section* section);

    PostProTnEng& engine_;
    tn::BoundedText output_;
    Section* section_;                 // the one at hand
    char reading_[WORD_MAX_LEN] = {};  // what the reader of this step wrote
    NextSection amount_end_;           // the next one that is no part of an amount of money
    NextSection greater_;              // the next ">"
};

}  // namespace kavi

#endif  // KAVI_TN_DISPATCHER_H
