#include "token_window.h"

#include <algorithm>

namespace kavi::tn {

const Token* TokenWindow::begin_row() {
    is_complete_ = false;
    tokens_[0] = tokens_[1] = NO_TOKEN;
    end_ = tokens_ + SECTIONS_BEFORE;
    fill();
    return tokens_ + SECTIONS_BEFORE;
}

const Token* TokenWindow::slide_to(const Token* token) {
    end_ = std::copy(token - SECTIONS_BEFORE, static_cast<const Token*>(end_), tokens_);
    fill();
    return tokens_ + SECTIONS_BEFORE;
}

}  // namespace kavi::tn
