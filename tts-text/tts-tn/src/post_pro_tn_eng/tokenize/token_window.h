// The tokens that the readers can see.
#ifndef KAVI_TN_TOKEN_WINDOW_H
#define KAVI_TN_TOKEN_WINDOW_H

#include <cstddef>

#include "../markup/tag_ends.h"
#include "../readers/readers.h"

namespace kavi::tn {

// "The next section of a kind", asked again and again while a walk over a queue moves on: no
// stretch of it is searched twice.
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

// A short row of tokens that slides along a text, or along a queue that a host holds, so that one
// of any length needs no more memory than this.
class TokenWindow {
  public:
    // Up to where a text is cut.
    enum class Reach {
        plain_word,  // the first plain word that no reader looks past, or the blank before it
        text_end,
    };

    // Of a text, which a NUL follows. `tag_ends` serves one pass over it.
    TokenWindow(Reach reach, TagEnds& tag_ends);

    // Of a queue, from `head` on, which may be null.
    explicit TokenWindow(Section* head);

    TokenWindow(const TokenWindow&) = delete;
    TokenWindow& operator=(const TokenWindow&) = delete;

    // The token at `text`, a place in the text. It has none before it.
    const Token* begin(const char* text);

    // The token of the queue's head.
    const Token* begin() const { return tokens_ + SECTIONS_BEFORE + n_before_; }

    // Where the text goes on after all tokens.
    const char* end() const { return text_; }

    // A token of the row, or the one after the last section, when all that a reader may look at
    // stands around it. Where that makes the row slide, no other token of it is good any more.
    const Token* at(const Token* token) { return token < slide_at_ ? token : slide_to(token); }

    // For a token of the row whose section has another text now.
    void set_length(const Token* token, std::size_t length) {
        tokens_[token - tokens_].length = static_cast<std::uint16_t>(length);
    }

    // Whether a "$" follows the amount that begins with this number.
    bool is_amount_before_dollar(const Token* number);

    // Whether a section that begins with ">" comes after this one.
    bool greater_follows(const Token* token);

  private:
    static constexpr std::size_t CAPACITY = 31;
    static_assert(CAPACITY > SECTIONS_BEFORE + 1 + SECTIONS_AHEAD);
    static_assert(SECTIONS_BEFORE == 2);

    const Token* begin_row();
    const Token* slide_to(const Token* token);
    void extend_from(Token* end);

    // Each writes the tokens that come next from `end` on, and returns where they end: before
    // `limit` when there are no more that a reader looks at.
    Token* cut_text(Token* end, Token* limit);
    Token* look_at_queue(Token* end, Token* limit);

    // How many sections of the queue the walk meets before this one.
    std::size_t index_of(const Token* token) const {
        return n_sections_ - static_cast<std::size_t>(end_ - token);
    }

    Token tokens_[CAPACITY + 1];  // the two before the first, and after the last one more
    Token* end_;
    const Token* slide_at_;  // from there on a reader may look for tokens that are not in the row

    // ---- of a text ----
    const char* text_ = nullptr;  // what comes next; null for a queue
    Reach reach_ = Reach::text_end;
    TagEnds* tag_ends_ = nullptr;
    const char* amount_end_ = nullptr;  // where the amount of money last looked at ends
    const char* searched_ = nullptr;    // up to here, the text has been searched for ">"
    TagEnds tags_ahead_;                // of that search

    // ---- of a queue ----
    Section* section_ = nullptr;  // what comes next
    int n_before_ = 0;            // sections before the head
    std::size_t n_sections_ = 0;  // that have become tokens
    QueueSearch after_amount_;    // the next that is no part of an amount of money
    QueueSearch greater_;         // the next ">"
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKEN_WINDOW_H
