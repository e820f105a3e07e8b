// The three digits of a number below a thousand, and the hundreds words they begin with.
#ifndef KAVI_TN_DIGITS_H
#define KAVI_TN_DIGITS_H

#include <cstddef>
#include <cstring>

#include "../common/word_table.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

struct Digits {
    // The first `length` characters of `text`, at most three. What is not there counts as zero, but
    // for the units of an empty text, which have no word.
    Digits(const char* text, std::size_t length)
        : hundreds(length >= 3 ? text[0] : '0'),
          tens(length >= 3   ? text[1]
               : length == 2 ? text[0]
                             : '0'),
          units(length >= 3  ? text[2]
                : length > 0 ? text[length - 1]
                             : '\0') {}

    char hundreds;
    char tens;
    char units;
};

// Appends to a NUL-terminated text. Number readings are short and their callers' buffers are not,
// so there is no bound to keep.
class NumberWords {
  public:
    explicit NumberWords(char* target) : end_(target + std::strlen(target)) {}

    void append(const char* words) {
        while (*words != '\0') *end_++ = *words++;
        *end_ = '\0';
    }

    void append_hundreds(char digit) {
        if (digit == '0') {
            append(" ");
            return;
        }
        append(number_word(s_number_to_char, digit));
        append(" hundred ");
    }

  private:
    char* end_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_DIGITS_H
