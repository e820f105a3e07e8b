// The tokens that the readers can see.
#ifndef KAVI_TN_TOKEN_WINDOW_H
#define KAVI_TN_TOKEN_WINDOW_H

#include <cstddef>

#include "../readers/readers.h"

namespace kavi::tn {

// A short row of tokens that slides along a sentence, so that one of any length needs no more
// memory than this. Searches that go further are the sentence's.
class TokenWindow {
  public:
    TokenWindow(const TokenWindow&) = delete;
    TokenWindow& operator=(const TokenWindow&) = delete;

    // A token of the row, or the one after the last section, when all that a reader may look at
    // stands around it. Where that makes the row slide, no other token of it is good any more.
    const Token* at(const Token* token) { return token < slide_at_ ? token : slide_to(token); }

    // Whether a "$" follows the amount that begins with this number.
    virtual bool is_amount_before_dollar(const Token* number) = 0;

    // Whether a section that begins with ">" comes after this one.
    virtual bool greater_follows(const Token* token) = 0;

  protected:
    // A row has to be begun then.
    // cppcheck-suppress uninitMemberVar ; of the row, those appended are set
    TokenWindow() {}
    ~TokenWindow() = default;

    // Writes the tokens that come next from `end` on, and returns where they end: before `limit`
    // when there are no more that a reader looks at.
    virtual Token* fill(Token* end, Token* limit) = 0;

    // A row whose first token is what comes next. Nothing stands before it.
    const Token* begin_row();

    // So many tokens from the end of the row back is this one.
    std::size_t from_end(const Token* token) const {
        return static_cast<std::size_t>(end_ - token);
    }

    static constexpr std::size_t CAPACITY = 31;
    static_assert(CAPACITY > SECTIONS_BEFORE + 1 + SECTIONS_AHEAD);
    static_assert(SECTIONS_BEFORE == 2);

    Token tokens_[CAPACITY + 1];  // the two before the first, and after the last one more

  private:
    const Token* slide_to(const Token* token);
    void extend_from(Token* end);

    Token* end_;
    const Token* slide_at_;  // from there on a reader may look for tokens that are not in the row
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKEN_WINDOW_H
