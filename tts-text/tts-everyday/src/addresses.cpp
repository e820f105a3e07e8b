// Telephone numbers, e-mail and web addresses.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Whether a telephone number may end at `end`.
bool may_end_number(const Cursor& cursor, std::size_t end) {
    const char after = cursor.peek(end);
    return !cursor.is_joined(end) &&
           !((after == '-' || after == '.') && is_digit(cursor.peek(end + 1)));
}

// Whether a shape may begin with the digits at the cursor: one or three, or "0" and more, a mark,
// and more.
bool may_begin_shape(const Cursor& cursor) {
    const std::size_t n_digits = cursor.digits().size();
    const char second = cursor.peek(n_digits + 1);
    return (n_digits == 1 || n_digits == 3 || cursor.peek() == '0') &&
           (is_digit(second) || second == '(');
}

// The longest shape of a telephone number at the cursor, or empty; "d" in a shape is any digit.
std::string_view shape_at(const Cursor& cursor) {
    const auto longest_from = [&](char first) {
        const Row* row = find_longest(TELEPHONE_SHAPES, [&](std::size_t at) {
            if (at == 0) return first;
            const char c = cursor.peek(at);
            return is_digit(c) ? 'd' : is_letter(c) ? '\0' : c;
        });
        while (row != nullptr && !may_end_number(cursor, row->written().size()))
            row = find_shorter(TELEPHONE_SHAPES, *row);
        return row;
    };
    const char first = cursor.peek();
    const Row* row = longest_from(is_digit(first) ? 'd' : first);
    if (row == nullptr && first == '0') row = longest_from(first);
    return row != nullptr ? row->written() : std::string_view();
}

void say_group(std::string_view digits, std::string& out) {
    if (digits == "800" || digits == "900") {
        say_digits(digits.substr(0, 1), out);
        return say("hundred", out);
    }
    say_digits(digits, out);
}

bool is_of_address(char c) {
    return is_letter(c) || is_digit(c) || c == '.' || c == '-' || c == '_' || c == '+' || c == '%';
}

// An address, piece by piece: words as they are, digits one by one, marks by name.
void say_address(std::string_view address, std::string& out) {
    while (!address.empty()) {
        const Cursor cursor = {address, 0};
        std::size_t length = 1;
        if (is_letter(address[0])) {
            length = cursor.letters().size();
            if (address.substr(0, length) == "www") {
                say("w w w", out);
            } else {
                say(address.substr(0, length), out);
            }
        } else if (is_digit(address[0])) {
            say_digits(address.substr(0, 1), out);
        } else {
            const Row* mark = find(ADDRESS_MARKS, address.substr(0, 1));
            if (mark != nullptr) say(mark->spoken(), out);
        }
        address.remove_prefix(length);
    }
}

// Without full stops and the like at its end, which are the sentence's.
std::string_view trimmed(std::string_view address) {
    while (!address.empty() && !is_letter(address.back()) && !is_digit(address.back()) &&
           address.back() != '/') {
        address.remove_suffix(1);
    }
    return address;
}

bool ends_in_domain(std::string_view host) {
    const std::size_t dot = host.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return false;
    return find(DOMAINS, host.substr(dot + 1)) != nullptr;
}

// "1-800-FLOWERS": the digits of a number that goes on in letters.
bool read_number_in_letters(const Cursor& cursor, Found& found) {
    if (cursor.peek() != '1' || cursor.peek(1) != '-') return false;
    const std::string_view area = cursor.digits(2);
    const bool is_one = area.size() == 3 && (area[0] == '8' || area[0] == '9') &&
                        cursor.peek(5) == '-' && is_letter(cursor.peek(6));
    if (!is_one) return false;
    say_digits("1", found.words);
    say_group(area, found.words);
    found.length = 5;
    return true;
}

}  // namespace

void read_telephone(const Cursor& cursor, Found& found) {
    const char c = cursor.peek();
    if (!is_digit(c) && c != '+' && c != '(') return;
    if (cursor.before() == '-' || cursor.before() == '.' || is_digit(cursor.before())) return;
    if (is_digit(c) && !may_begin_shape(cursor)) return;
    if (read_number_in_letters(cursor, found)) return;
    const std::string_view shape = shape_at(cursor);
    found.length = shape.size();
    if (c == '+' && !shape.empty()) say("plus", found.words);
    for (std::size_t at = 0; at < shape.size(); ++at) {
        if (!is_digit(cursor.peek(at))) continue;
        const std::string_view group = cursor.digits(at);
        say_group(group, found.words);
        at += group.size() - 1;
    }
    if (shape.empty() || !cursor.starts_with(" x", shape.size())) return;
    const std::string_view extension = cursor.digits(shape.size() + 2);
    if (extension.empty()) return;
    say("extension", found.words);
    say_digits(extension, found.words);
    found.length += 2 + extension.size();
}

// Where an address may begin, with what no word of a sentence has in it.
void read_address(const Cursor& cursor, Found& found) {
    const char before = cursor.before();
    const char last = cursor.before(2);
    const bool is_inside =
        (before == '@' || is_of_address(before)) && (is_letter(last) || is_digit(last));
    if (is_inside) return;
    if (cursor.starts_with(":\\", 1)) {  // "C:\temp"
        say(cursor.part(0, 1), found.words);
        say("colon", found.words);
        found.length = 2;
        return;
    }
    std::size_t scheme = 0;
    if (cursor.starts_with("https://")) scheme = 8;
    if (cursor.starts_with("http://")) scheme = 7;
    if (cursor.starts_with("ftp://")) scheme = 6;
    std::string_view name = cursor.part(scheme, cursor.run(is_of_address, scheme));
    const bool is_mail = scheme == 0 && cursor.peek(name.size()) == '@';
    if (is_mail) {
        const std::string_view host =
            trimmed(cursor.part(name.size() + 1, cursor.run(is_of_address, name.size() + 1)));
        if (host.find('.') == std::string_view::npos) return;
        found.length = name.size() + 1 + host.size();
        return say_address(cursor.part(0, found.length), found.words);
    }
    const std::string_view host = trimmed(name);
    if (host.find('.') == std::string_view::npos) return;
    if (scheme == 0 && host.substr(0, 4) != "www." && !ends_in_domain(host)) return;
    std::size_t length = scheme + host.size();
    if (cursor.peek(length) == '/') {
        const auto is_of_path = [](char c) {
            return c > ' ' && c < 127 && c != '<' && c != '>' && c != '"' && c != ')';
        };
        length += trimmed(cursor.part(length, cursor.run(is_of_path, length))).size();
    }
    found.length = length;
    // A slash at the end is not said.
    const std::size_t spoken = cursor.peek(length - 1) == '/' ? length - 1 : length;
    say_address(cursor.part(scheme, spoken - scheme), found.words);
}

}  // namespace kavi::everyday
