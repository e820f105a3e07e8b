// States after a place, and the ZIP codes after them.

#include "rules.h"

namespace kavi::everyday {

namespace {

constexpr std::size_t ZIP_DIGITS = 5;

// "46402" or "46402-1234" after a blank; its length, with the blank.
std::size_t zip_length(const Cursor& cursor, std::size_t ahead) {
    if (cursor.peek(ahead) != ' ' || cursor.digits(ahead + 1).size() != ZIP_DIGITS) return 0;
    const std::size_t end = ahead + 1 + ZIP_DIGITS;
    if (cursor.peek(end) == '-' && cursor.digits(end + 1).size() == 4) return end + 5 - ahead;
    const bool is_group = cursor.peek(end) == ',' && is_digit(cursor.peek(end + 1));
    return cursor.is_joined(end) || is_group ? 0 : end - ahead;
}

// "Biloxi, " is before the place.
bool is_after_place(const Cursor& cursor) {
    if (cursor.before() != ' ' || cursor.before(2) != ',') return false;
    const std::string_view name = cursor.letters_before(2);
    return name.size() > 2 && is_upper(name[0]) && is_lower(name.back());
}

// "Portland OR 97201", "MD 20850"
bool has_code(const Cursor& cursor) {
    return is_upper(cursor.peek(1)) && zip_length(cursor, 2) > 0 && cursor.before() != '-' &&
           !cursor.is_joined_before();
}

// "from Salem, "
bool has_preposition(const Cursor& cursor) {
    const std::string_view name = cursor.letters_before(2);
    return find(BEFORE_PLACE, cursor.word_before(2 + name.size())) != nullptr;
}

}  // namespace

void read_state(const Cursor& cursor, Found& found) {
    if (!is_upper(cursor.peek()) || (!is_after_place(cursor) && !has_code(cursor))) return;
    const std::string_view written = cursor.letters();
    const Row* row = find(STATES, written);
    if (row == nullptr || cursor.is_joined(written.size()) || cursor.dash(written.size()) > 0)
        return;
    std::size_t end = written.size();
    if (row->kind == Kind::inside && is_upper(cursor.peek(end + 2))) return;
    if (cursor.peek(end) == '.') {
        if (!cursor.may_end_sentence(end + 1)) ++end;
    } else if (row->kind == Kind::needed || row->kind == Kind::inside) {
        return;
    }
    const bool is_of_name =
        cursor.peek(end) == ' ' && is_upper(cursor.peek(end + 1)) && is_lower(cursor.peek(end + 2));
    if (is_of_name) return;  // "Revolution, AK Press"
    const std::size_t zip = zip_length(cursor, end);
    if (row->kind == Kind::before_number && zip == 0) return;
    const bool needs_more = row->kind == Kind::after_place || row->kind == Kind::both;
    const bool has_comma = row->kind == Kind::both && cursor.peek(end) == ',';
    if (needs_more && zip == 0 && !has_comma && !has_preposition(cursor)) return;
    found.length = end + zip;
    found.say_name(0, written.size(), row->spoken());
    for (std::size_t at = end; at < found.length; ++at) {
        if (is_digit(cursor.peek(at))) say_digits(cursor.part(at, 1), found.words);
    }
}

}  // namespace kavi::everyday
