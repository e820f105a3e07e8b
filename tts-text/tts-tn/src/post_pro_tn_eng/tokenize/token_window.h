// The token window: the tokens that readers can see.
//
// A row of at most CAPACITY tokens, in which the two (SECTIONS_BEFORE) before the current token and
// the ten (SECTIONS_AHEAD) after it are present, as far as they exist. Readers look no further
// (readers/readers.h), so they see what they would see of the whole text. When the current token
// comes within ten of the end of a full row, the row slides: the two tokens before it and all after
// it move to the front, and more are cut behind them. Memory is bounded for a text of any length.
//
// Of a text, with Reach::plain_word, the row ends with the first plain word, or the blank before
// it: no reader looks past it, and plain text goes on there (tokenize/plain_text). In
//
//     She paid $5 for 2 tickets.
//
// the row that begins at "$" is "$", "5", " ": the blank before "for" ends it. The next row is "2",
// " ". A token is a view of 24 bytes on the stack, where a Section is a block of 520.
#ifndef KAVI_TN_TOKEN_WINDOW_H
#define KAVI_TN_TOKEN_WINDOW_H

#include <cstddef>

#include "../markup/tag_ends.h"
#include "../readers/readers.h"

namespace kavi::tn {

// Repeated searches for the next section of a kind, from sections that move forward through a
// queue. No section is tested twice.
class QueueSearch {
  public:
    using Test = bool(const Section* section);

    explicit QueueSearch(Test* is_wanted) : is_wanted_(is_wanted) {}

    // The first wanted section at or after `from`, or null. `index` is the index of `from` in the
    // walk.
    const Section* find(const Section* from, std::size_t index);

  private:
    Test* is_wanted_;
    const Section* found_ = nullptr;
    std::size_t known_to_ = 0;  // found_ is the answer for every index below this
};

// A row of tokens that slides along a text or along a queue of the host.
class TokenWindow {
  public:
    // How far a text is cut into tokens.
    enum class Reach {
        plain_word,  // through the first plain word that no reader looks past, or the blank before
                     // it
        text_end,
    };

    // For a NUL-terminated text. `tag_ends` serves one scan of it.
    TokenWindow(Reach reach, TagEnds& tag_ends);

    // For the queue with head `head`, which may be null. Up to two sections before it are seen.
    explicit TokenWindow(Section* head);

    TokenWindow(const TokenWindow&) = delete;
    TokenWindow& operator=(const TokenWindow&) = delete;

    // Begins a row at `text`, a position in the text, and returns its first token. No token is
    // before it.
    const Token* begin(const char* text);

    // The token of the queue's head.
    const Token* begin() const { return tokens_ + SECTIONS_BEFORE + n_before_; }

    // The position in the text after the last token.
    const char* end() const { return text_; }

    // The same token, with all tokens around it that a reader may look at. `token` is a token of
    // the row or the one after the last section. If the row slides, all other pointers to tokens
    // are invalid.
    const Token* at(const Token* token) { return token < slide_at_ ? token : slide_to(token); }

    // Sets the length of a token whose section the reader has changed.
    void set_length(const Token* token, std::size_t length) {
        tokens_[token - tokens_].length = static_cast<std::uint16_t>(length);
    }

    // Whether a "$" follows the digits, commas and full stops that begin with this number.
    bool is_amount_before_dollar(const Token* number);

    // Whether a section after this one, however far, begins with ">".
    bool greater_follows(const Token* token);

  private:
    static constexpr std::size_t CAPACITY = 31;
    static_assert(CAPACITY > SECTIONS_BEFORE + 1 + SECTIONS_AHEAD);
    static_assert(SECTIONS_BEFORE == 2);

    const Token* begin_row();
    const Token* slide_to(const Token* token);
    void extend_from(Token* end);

    // Each writes the next tokens from `end` to at most `limit` and returns their end. It is before
    // `limit` only when there are no more.
    Token* cut_text(Token* end, Token* limit);
    Token* look_at_queue(Token* end, Token* limit);

    // The index in the walk of a section of the queue.
    std::size_t index_of(const Token* token) const {
        return n_sections_ - static_cast<std::size_t>(end_ - token);
    }

    Token tokens_[CAPACITY + 1];  // two before the first, one after the last
    Token* end_;
    const Token* slide_at_;  // from here on a reader may look past the row

    // ---- of a text ----
    const char* text_ = nullptr;  // the cursor; null for a queue
    Reach reach_ = Reach::text_end;
    TagEnds* tag_ends_ = nullptr;
    const char* amount_end_ = nullptr;  // end of the amount that was tested last
    const char* searched_ = nullptr;    // the cursor of the search for ">"
    TagEnds tags_ahead_;                // of that search

    // ---- of a queue ----
    Section* section_ = nullptr;  // the cursor
    int n_before_ = 0;            // sections before the head in the row
    std::size_t n_sections_ = 0;  // that have become tokens
    QueueSearch after_amount_;    // the next section that is not part of an amount
    QueueSearch greater_;         // the next section that begins with ">"
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKEN_WINDOW_H
