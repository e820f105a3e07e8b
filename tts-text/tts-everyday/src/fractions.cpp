// Fractions, by a sign of their own or with a slash.

#include "fractions.h"

namespace kavi::everyday {

namespace {

// "1/2", "3/4": up to two digits above, three below. `is_adjective`: "a 3/4-inch bolt".
bool say_fraction(std::string_view above, std::string_view below, bool is_adjective,
                  std::string& out) {
    if (above.size() > 2 || below.empty() || below.size() > 3 || below[0] == '0') return false;
    if (below == "1") return false;
    say_cardinal(above, out);
    const bool is_one = above == "1" || is_adjective;
    if (below == "2") {
        say(is_one ? "half" : "halves", out);
    } else if (below == "4") {
        say(is_one ? "quarter" : "quarters", out);
    } else {
        say_ordinal(below, out);
        if (!is_one) out += 's';
    }
    return true;
}

// Of numbers as they are written, without zeros before them.
bool is_less(std::string_view number, std::string_view than) {
    return number.size() != than.size() ? number.size() < than.size() : number < than;
}

void say_whole_and(std::string_view whole, std::string& out) {
    say_cardinal(whole, out);
    say("and", out);
}

// "3½", "3 ½"
bool read_whole_and_sign(const Cursor& cursor, std::string_view whole, Found& found) {
    constexpr std::string_view ONE = "one ";
    const std::size_t at = whole.size() + (cursor.peek(whole.size()) == ' ' ? 1 : 0);
    const Row* sign = fraction_sign_at(cursor, at);
    if (sign == nullptr) return false;
    say_whole_and(whole, found.words);
    std::string_view part = sign->spoken();
    if (part.substr(0, ONE.size()) == ONE) {
        say("a", found.words);
        part.remove_prefix(ONE.size());
    }
    say(part, found.words);
    found.length = at + sign->written().size();
    const std::size_t dash = cursor.dash(found.length);
    if (dash > 0 && is_digit(cursor.peek(found.length + dash))) {  // "1½–2 hrs"
        say("to", found.words);
        found.length += dash;
        return true;
    }
    read_unit_after(cursor, false, found);
    return true;
}

// "3 1/2", "3 5/16", "3-1/2"
bool read_whole_and_slash(const Cursor& cursor, std::string_view whole, Found& found) {
    const char gap = cursor.peek(whole.size());
    if (gap != ' ' && gap != '-') return false;
    const std::string_view above = cursor.digits(whole.size() + 1);
    const std::size_t slash = whole.size() + 1 + above.size();
    const std::string_view below = cursor.digits(slash + 1);
    if (above.empty() || cursor.peek(slash) != '/' || !is_less(above, below)) return false;
    std::string words;
    say_whole_and(whole, words);
    if (!say_fraction(above, below, false, words)) return false;
    found.words = words;
    found.length = slash + 1 + below.size();
    read_unit_after(cursor, false, found);
    return true;
}

// "a 7/10", "4/5 stars"
bool is_rating(const Cursor& cursor, std::string_view above, std::string_view below,
               std::size_t end) {
    if (!is_best_mark(below) || is_less(below, above)) return false;
    const std::string_view before = cursor.word_before();
    const bool has_article = (before == "a" || before == "an") && below != "5" && above != "1";
    return has_article || cursor.starts_with(" stars", end) || cursor.starts_with(" points", end);
}

// "120/80", "355/113": three digits above; after a name they are two numbers, "Boeing 757/767".
bool is_ratio(const Cursor& cursor, std::string_view above, std::string_view below) {
    if (above.size() != 3 || above[0] == '0' || below.empty() || below[0] == '0') return false;
    const std::string_view name = cursor.word_before();
    return below.size() < 3 || (below.size() == 3 && (name.empty() || !is_upper(name[0])));
}

// "4/4 time", "6/8 time"
bool is_time_signature(std::string_view below) {
    return below == "2" || below == "4" || below == "8" || below == "16";
}

// "the 33/1 shot", "a 7/2 favourite"
bool has_odds(const Cursor& cursor, std::size_t end) {
    if (cursor.peek(end) != ' ') return false;
    const Row* noun = find(RATIO_NOUNS, cursor.letters(end + 1));
    return noun != nullptr && noun->kind == Kind::both;
}

// What is said between two numbers that are no fraction, perhaps nothing; null where they are one.
const char* words_between(const Cursor& cursor, std::string_view above, std::string_view below,
                          std::size_t end) {
    if (is_rating(cursor, above, below, end)) return "out of";
    if (has_odds(cursor, end) || (below == "1" && cursor.word_before() == "at")) return "to";
    if (below == "1" && !cursor.is_joined(end)) return "over";
    if (const Row* row = find_lower(BEFORE_SLASH, cursor.word_before())) {
        const bool is_mark = is_best_mark(below) && !is_less(below, above);
        if (is_mark || row->spoken() == "of") return row->spoken().data();
    }
    if (above == below && above.size() < 4 && above != "1") {  // "20/20"
        const bool is_sight =
            cursor.starts_with(" vision", end) || cursor.starts_with(" hindsight", end);
        return is_sight ? "" : "out of";
    }
    if (above != "1" && cursor.starts_with(" time", end) && is_time_signature(below)) return "";
    return is_ratio(cursor, above, below) && !cursor.is_joined(end) ? "over" : nullptr;
}

// Of "2/3rds", "1/4th".
std::size_t suffix_length(const Cursor& cursor, std::size_t ahead) {
    const std::string_view letters = cursor.letters(ahead);
    const bool is_many = !letters.empty() && letters.back() == 's';
    const std::string_view suffix = letters.substr(0, letters.size() - (is_many ? 1 : 0));
    return find(ORDINAL_SUFFIXES, suffix) != nullptr ? letters.size() : 0;
}

// "9/11 of them", "you get 9/11"
bool is_plain_fraction(const Cursor& cursor, std::size_t end) {
    const std::string_view verb = cursor.word_before();
    return cursor.starts_with(" of ", end) || verb == "get" || verb == "gives" || verb == "equals";
}

// "1/2", with no other slash before it or after it
bool read_slash(const Cursor& cursor, std::string_view above, Found& found) {
    if (cursor.peek(above.size()) != '/' || cursor.before() == '/') return false;
    const std::string_view below = cursor.digits(above.size() + 1);
    const std::size_t end = above.size() + 1 + below.size();
    if (cursor.peek(end) == '/') return false;
    const Row* named = find(FRACTIONS, cursor.part(0, end));
    if (named != nullptr && !is_plain_fraction(cursor, end)) {
        say(named->spoken(), found.words);
    } else if (const char* words = words_between(cursor, above, below, end)) {
        say_cardinal(above, found.words);
        if (*words != '\0') say(words, found.words);
        say_cardinal(below, found.words);
    } else if (const bool is_adjective = cursor.peek(end) == '-' && is_letter(cursor.peek(end + 1));
               !say_fraction(above, below, is_adjective, found.words)) {
        return false;
    }
    const std::size_t suffix = suffix_length(cursor, end);
    found.length = end + suffix;
    if (suffix == 0) read_unit_after(cursor, true, found);
    return true;
}

}  // namespace

bool is_best_mark(std::string_view digits) {
    return digits == "5" || digits == "10" || digits == "100";
}

const Row* fraction_sign_at(const Cursor& cursor, std::size_t ahead) {
    if (!is_outside_ascii(cursor.peek(ahead))) return nullptr;
    return cursor.find_row(FRACTIONS, ahead);
}

bool read_fraction(const Cursor& cursor, Found& found) {
    const std::string_view digits = cursor.digits();
    return read_whole_and_sign(cursor, digits, found) ||
           read_whole_and_slash(cursor, digits, found) || read_slash(cursor, digits, found);
}

}  // namespace kavi::everyday
