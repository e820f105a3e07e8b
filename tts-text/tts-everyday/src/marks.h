// What the readers of marks share.
#ifndef KAVI_EVERYDAY_MARKS_H
#define KAVI_EVERYDAY_MARKS_H

#include "rules.h"

namespace kavi::everyday {

inline bool is_blank_or_end(char c) {
    return c == ' ' || c == '\n' || c == '\t' || c == '\0';
}

// Whether a word may begin after `c`: no letter, no digit and no mark that joins.
inline bool may_precede_word(char c) {
    return is_blank_or_end(c) || c == '(' || c == '[' || c == '{' || c == '"' || c == '\'' ||
           c == '`' || c == ',';
}

// The same of what ends at the cursor; curly quotes and dashes are outside ASCII.
inline bool begins_word(const Cursor& cursor) {
    const char before = cursor.before();
    return may_precede_word(before) || (is_outside_ascii(before) && !cursor.is_joined_before());
}

// Each answers whether it has read the mark at the cursor.
bool read_rule(const Cursor& cursor, Found& found);  // silent_marks.cpp
bool read_stress(const Cursor& cursor, Found& found);
bool read_silent_asterisk(const Cursor& cursor, Found& found);
bool read_address_in_brackets(const Cursor& cursor, Found& found);
bool read_quotation(const Cursor& cursor, Found& found);
bool read_operator(const Cursor& cursor, Found& found);  // operators.cpp
bool read_plus(const Cursor& cursor, Found& found);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_MARKS_H
