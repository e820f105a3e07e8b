// Character classes: ASCII only, independent of the locale and of the signedness of char.
#ifndef KAVI_TN_ASCII_H
#define KAVI_TN_ASCII_H

#include <string_view>

namespace kavi::tn {

constexpr bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool is_upper(char c) {
    return c >= 'A' && c <= 'Z';
}
constexpr bool is_lower(char c) {
    return c >= 'a' && c <= 'z';
}
constexpr bool is_letter(char c) {
    return is_upper(c) || is_lower(c);
}
constexpr char to_lower(char c) {
    return is_upper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}
constexpr char to_upper(char c) {
    return is_lower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether the text has only digits. True for the empty text.
constexpr bool is_digits(std::string_view text) {
    for (const char c : text) {
        if (!is_digit(c)) return false;
    }
    return true;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_ASCII_H
