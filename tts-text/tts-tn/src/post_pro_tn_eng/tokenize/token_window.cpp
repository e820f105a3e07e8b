#include "token_window.h"

#include <algorithm>

namespace kavi::tn {

const Token* TokenWindow::begin_row() {
    tokens_[0] = NO_TOKEN;
    tokens_[1] = NO_TOKEN;  // not copied from the first: loading it would wait for its stores
    extend_from(tokens_ + SECTIONS_BEFORE);
    return tokens_ + SECTIONS_BEFORE;
}

const Token* TokenWindow::slide_to(const Token* token) {
    extend_from(std::copy(token - SECTIONS_BEFORE, static_cast<const Token*>(end_), tokens_));
    return tokens_ + SECTIONS_BEFORE;
}

void TokenWindow::extend_from(Token* end) {
    Token* const limit = tokens_ + CAPACITY;
    end_ = fill(end, limit);
    slide_at_ = end_ != limit ? limit + 1 : end_ - SECTIONS_AHEAD;
    *end_ = NO_TOKEN;
}

}  // namespace kavi::tn
