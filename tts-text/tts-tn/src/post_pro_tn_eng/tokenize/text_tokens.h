// The tokens of a sentence.
#ifndef KAVI_TN_TEXT_TOKENS_H
#define KAVI_TN_TEXT_TOKENS_H

#include "section_cut.h"
#include "token_window.h"

namespace kavi::tn {

class TextTokens final : public TokenWindow {
  public:
    // Up to where the text is cut.
    enum class Reach {
        plain_word,  // the first plain word that no reader looks past, or the blank before it
        text_end,
    };

    // A NUL follows the text. `tag_ends` serves one pass over it.
    TextTokens(Reach reach, TagEnds& tag_ends) : reach_(reach), tag_ends_(tag_ends) {}

    // The token at `text`. Nothing stands before it.
    const Token* begin(const char* text) {
        next_ = text;
        return begin_row();
    }

    // Where the text goes on after all tokens.
    const char* end() const { return next_; }

    bool is_amount_before_dollar(const Token* number) override;
    bool greater_follows(const Token* token) override {
        return greater_follows(token->begin + token->length);
    }

    // The same from a place in the text where a section begins.
    bool greater_follows(const char* text);

  private:
    Token* fill(Token* end, Token* limit) override;
    bool find_greater();

    Reach reach_;
    TagEnds& tag_ends_;
    const char* next_ = nullptr;

    const char* amount_end_ = nullptr;  // where the amount of money last looked at ends
    const char* searched_ = nullptr;    // up to here, the text has been searched for ">"
    TagEnds tags_ahead_;                // of that search
};

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_TOKENS_H
