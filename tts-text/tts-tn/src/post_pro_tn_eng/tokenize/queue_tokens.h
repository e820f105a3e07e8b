// The tokens of a queue that a host holds.
#ifndef KAVI_TN_QUEUE_TOKENS_H
#define KAVI_TN_QUEUE_TOKENS_H

#include "token_window.h"

namespace kavi::tn {

// "The next section of a kind", asked again and again while a walk moves on: no stretch of the
// queue is searched twice.
class QueueSearch {
  public:
    using Test = bool(const Section* section);

    explicit QueueSearch(Test* is_wanted) : is_wanted_(is_wanted) {}

    // The first at or after `from`, which is the `index`-th that the walk meets, or null.
    const Section* find(const Section* from, std::size_t index);

  private:
    Test* is_wanted_;
    const Section* found_ = nullptr;
    std::size_t known_to_ = 0;  // the answer of all before this
};

class QueueTokens final : public TokenWindow {
  public:
    // From `head` on, which may be null.
    explicit QueueTokens(Section* head);

    const Token* begin() const { return tokens_ + SECTIONS_BEFORE + n_before_; }

    bool is_amount_before_dollar(const Token* number) override;
    bool greater_follows(const Token* token) override;

  private:
    Token* fill(Token* end, Token* limit) override;
    std::size_t index_of(const Token* token) const { return n_ - from_end(token); }

    Section* next_;
    int n_before_ = 0;        // sections before the head
    std::size_t n_ = 0;       // of sections appended
    QueueSearch amount_end_;  // the next that is no part of an amount of money
    QueueSearch greater_;     // the next ">"
};

}  // namespace kavi::tn

#endif  // KAVI_TN_QUEUE_TOKENS_H
