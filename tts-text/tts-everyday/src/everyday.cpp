// One pass over a text: at each place where a word, a number or a mark begins, the lexicon and the
// rules that may read what begins with such a character.

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "for_everyday.h"
#include "own_words.h"
#include "tokens.h"
#include "tts_everyday.h"

namespace kavi {

namespace {

using everyday::Found;
using everyday::is_digit;
using everyday::is_letter;
using everyday::is_lower;
using everyday::is_outside_ascii;
using everyday::OwnWords;
using everyday::Place;

struct RuleRow {
    EverydayClass everyday_class;
    everyday::Rule rule;
};

// The rules for what begins with a digit, a letter or another mark, in the order in which they are
// tried. American dates are tried where the option says so.
constexpr RuleRow DIGIT_RULES[] = {
    {EverydayClass::addresses, everyday::read_telephone},
    {EverydayClass::years, everyday::read_date},
    {EverydayClass::numbers, everyday::read_version},
    {EverydayClass::numbers, everyday::read_long_code},
    {EverydayClass::times, everyday::read_time},
    {EverydayClass::currencies, everyday::read_amount_after},
    {EverydayClass::units, everyday::read_unit},
    {EverydayClass::numbers, everyday::read_numbered},
    {EverydayClass::years, everyday::read_year},
    {EverydayClass::numbers, everyday::read_plural_number},
    {EverydayClass::numbers, everyday::read_number},
};
constexpr RuleRow WORD_RULES[] = {
    {EverydayClass::addresses, everyday::read_address},
    {EverydayClass::currencies, everyday::read_currency},
    {EverydayClass::titles, everyday::read_scripture},
    {EverydayClass::titles, everyday::read_state},
    {EverydayClass::titles, everyday::read_title},
    {EverydayClass::years, everyday::read_date},
    {EverydayClass::roman, everyday::read_roman},
    {EverydayClass::contractions, everyday::read_contraction},
    {EverydayClass::numbers, everyday::read_code},
    {EverydayClass::numbers, everyday::read_sign},
    {EverydayClass::marks, everyday::read_slashed_words},
    {EverydayClass::marks, everyday::read_named_mark},
    {EverydayClass::letters, everyday::read_letters},
};
constexpr RuleRow MARK_RULES[] = {
    {EverydayClass::addresses, everyday::read_telephone},
    {EverydayClass::currencies, everyday::read_currency},
    {EverydayClass::years, everyday::read_year},
    {EverydayClass::units, everyday::read_unit},
    {EverydayClass::units, everyday::read_rate},
    {EverydayClass::numbers, everyday::read_point},
    {EverydayClass::numbers, everyday::read_sign},
    {EverydayClass::contractions, everyday::read_contraction},
    {EverydayClass::marks, everyday::read_mark},
    {EverydayClass::marks, everyday::read_named_mark},
    {EverydayClass::shields, everyday::read_shield},
    {EverydayClass::letters, everyday::read_typography},
};

// What an explanation says: the name of the class, after a prefix.
constexpr std::string_view PREFIX = "everyday: ";
const char* rule_name_of(EverydayClass everyday_class) {
    switch (everyday_class) {
        case EverydayClass::titles: return "everyday: titles";
        case EverydayClass::contractions: return "everyday: contractions";
        case EverydayClass::currencies: return "everyday: currencies";
        case EverydayClass::units: return "everyday: units";
        case EverydayClass::years: return "everyday: years";
        case EverydayClass::times: return "everyday: times";
        case EverydayClass::addresses: return "everyday: addresses";
        case EverydayClass::roman: return "everyday: roman";
        case EverydayClass::numbers: return "everyday: numbers";
        case EverydayClass::letters: return "everyday: letters";
        case EverydayClass::shields: return "everyday: shields";
        case EverydayClass::marks: return "everyday: marks";
    }
    return "";
}

struct Rules {
    const RuleRow* begin;
    const RuleRow* end;
};

Rules rules_for(const Place& place) {
    if (is_digit(place.peek())) return {std::begin(DIGIT_RULES), std::end(DIGIT_RULES)};
    if (place.letter(0) > 0) return {std::begin(WORD_RULES), std::end(WORD_RULES)};
    return {std::begin(MARK_RULES), std::end(MARK_RULES)};
}

// Whether a text that ends where `text` does may go on as the name of a markup tag.
bool is_begin_of_name(std::string_view text) {
    return std::any_of(std::begin(tn::MARKUP_TAGS), std::end(tn::MARKUP_TAGS),
                       [=](const tn::MarkupTag& tag) { return tn::begins_with(tag.prefix, text); });
}

// The markup tag that begins at `at`: its length, or 0 for none. `searched` is of find_ahead().
// `is_open`: more text would tell.
std::size_t tag_length(std::string_view text, std::size_t at, std::size_t& searched,
                       bool& is_open) {
    if (text[at] != '<') return 0;
    if (tn::find_markup_tag(text.substr(at)) == nullptr) {
        is_open = is_begin_of_name(text.substr(at));
        return 0;
    }
    const std::size_t end = find_ahead(text, at, '>', TAG_MAX, searched);
    if (end != std::string_view::npos) return end + 1 - at;
    is_open = text.size() - at < TAG_MAX;
    return 0;
}

// The first two letters of the abbreviations that are written without a full stop, "vs" and "tsp":
// for each first one, by its last five bits, a bit for each second one.
using Beginnings = std::array<std::uint32_t, 32>;
constexpr unsigned bits_of(char letter) {
    return static_cast<unsigned>(letter) & 31U;
}
constexpr Beginnings BEGINNINGS = [] {
    Beginnings beginnings{};
    for (const everyday::Row& row : everyday::TITLES) {
        if (row.kind != everyday::Kind::never || !is_lower(row.written[0])) continue;
        const bool is_one_letter = row.written.size() == 1;
        beginnings[bits_of(row.written[0])] |= is_one_letter ? ~0U : 1U << bits_of(row.written[1]);
    }
    return beginnings;
}();

// Most words: in small letters, with nothing after them that any rule reads, and no abbreviations.
bool is_plain_word(const Place& place) {
    if (!is_lower(place.peek())) return false;
    if ((BEGINNINGS[bits_of(place.peek())] >> bits_of(place.peek(1)) & 1U) != 0) return false;
    const char after = place.peek(place.run(is_letter));
    return after == ' ' || after == ',' || after == '\0' || after == ';' || after == '?' ||
           after == '!' || after == ')' || after == '"' || after == '<';
}

// Whether a rule reads what begins at a place, within the bound of what it can see. `is_open`: more
// text would tell.
bool has_found(everyday::Rule rule, const Place& place, Found& found, bool& is_open) {
    found.length = 0;
    found.words.clear();
    found.name = {};
    rule(place, found);
    is_open = is_open || place.has_met_end();
    return found.length > 0 && !place.has_met_bound();
}

struct Settings {
    unsigned classes;
    bool american_dates;
};

// The first of the rules that are on and read what begins at `at`, where the user's words allow it,
// or null. `entry` is that of a word that the user has in its place, or null. `is_open`: more text
// could make it another.
const RuleRow* find_rule(std::string_view text, std::size_t at, const Settings& settings,
                         OwnWords& own_words, Found& found, const Lexicon::Entry*& entry,
                         bool& is_open) {
    const Place place(text, at);
    const bool is_plain = is_plain_word(place);
    is_open = is_open || place.has_met_end();
    if (is_plain) return nullptr;
    const Rules rules = rules_for(place);
    is_open = is_open || place.has_met_end();
    for (const RuleRow* row = rules.begin; row != rules.end; ++row) {
        if ((settings.classes >> static_cast<unsigned>(row->everyday_class) & 1U) == 0) continue;
        const bool is_found =
            (settings.american_dates && row->rule == everyday::read_date &&
             has_found(everyday::read_american_date, Place(text, at), found, is_open)) ||
            has_found(row->rule, Place(text, at), found, is_open);
        if (!is_found) continue;
        // An address is one word, whatever is in it.
        entry = nullptr;
        if (row->everyday_class == EverydayClass::addresses) return row;
        if (own_words.allow(at, found, entry)) return row;
    }
    return nullptr;
}

// A full stop after words must not make an abbreviation of the last of them.
void shield(char after, std::string& words) {
    if (after == '.' && everyday::ends_like_abbreviation(words)) words += ' ';
}

// Makes words be words of their own between two characters, with a blank where those are of a word
// or a number.
void set_apart(char before, char after, std::string& words) {
    if (words.empty()) words = " ";
    const auto joins = [](char c) { return is_letter(c) || is_outside_ascii(c) || is_digit(c); };
    if (is_letter(words[0]) && joins(before)) words.insert(0, 1, ' ');
    if (is_letter(words.back()) && joins(after)) words += ' ';
}

// Where the next word, number or mark begins after that at `at`, past blanks. `is_open`: more text
// would tell.
std::size_t next_place(std::string_view text, std::size_t at, bool& is_open) {
    std::size_t next = at + everyday::cluster_length(text, at);
    is_open = !everyday::is_there(text, next);
    while (next < text.size() && text[next] == ' ') ++next;
    return next;
}

// No rule reads more of a word, also when a few characters of it have not come.
constexpr std::size_t LONG_WORD = everyday::LOOK_AHEAD + 2 * everyday::CODE_POINT_BYTES;

// Notes that a text that may go on is decided about up to `at`.
bool wait_at(std::size_t at, Rewriting& rewriting) {
    rewriting.decided = at;
    rewriting.is_inside_word = false;
    return false;
}

// The same where it ends inside a word, longer than any that is read: up to its last character.
bool wait_inside_word(std::string_view text, Rewriting& rewriting) {
    std::size_t at = text.size() - everyday::CODE_POINT_BYTES;
    for (std::size_t back = 1; back < everyday::CODE_POINT_BYTES; ++back) {
        if ((static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U) --at;
    }
    rewriting.decided = std::max(at, rewriting.decided);
    rewriting.is_inside_word = true;
    return false;
}

}  // namespace

const char* name_of(EverydayClass everyday_class) {
    return rule_name_of(everyday_class) + PREFIX.size();
}

std::optional<EverydayClass> everyday_class_of(std::string_view name) {
    for (int i = 0; i < EVERYDAY_CLASSES; ++i) {
        const auto everyday_class = static_cast<EverydayClass>(i);
        if (name == name_of(everyday_class)) return everyday_class;
    }
    return {};
}

bool Everyday::next(std::string_view text, Rewriting& rewriting) const {
    const std::size_t from = rewriting.source.offset + rewriting.source.length;
    // Words that end at a full stop have their shield.
    const unsigned shields = 1U << static_cast<unsigned>(EverydayClass::shields);
    const std::size_t words_end = rewriting.source.length > 0 ? from : text.size();
    OwnWords own_words(lexicon_, text);
    Found found;
    found.words.swap(rewriting.words);  // for its memory
    std::size_t at = std::max(from, rewriting.decided);
    bool is_open = false;  // more text could make the answer another
    if (rewriting.is_inside_word) {
        const std::size_t next = next_place(text, at, is_open);
        if (is_open && rewriting.may_go_on) return wait_inside_word(text, rewriting);
        rewriting.is_inside_word = false;
        at = next;
    }
    while (at < text.size()) {
        const std::size_t tag = tag_length(text, at, rewriting.tag_end, is_open);
        if (tag > 0) {
            at += tag;
            continue;
        }
        const unsigned classes = at == words_end ? classes_ & ~shields : classes_;
        const Lexicon::Match own = own_words.at(at);
        const Lexicon::Entry* entry = nullptr;
        const RuleRow* row =
            find_rule(text, at, {classes, american_dates_}, own_words, found, entry, is_open);
        if (row == nullptr) entry = own.entry;
        if (row == nullptr && entry != nullptr) {
            found.length = own.length;
            found.words = entry->spoken;
        }
        const bool is_found = row != nullptr || entry != nullptr;
        const std::size_t end = at + found.length;
        is_open = is_open || own_words.reaches_end() || (is_found && end == text.size());
        if (is_open && rewriting.may_go_on) return wait_at(at, rewriting);
        if (!is_found) {
            const std::size_t next = next_place(text, at, is_open);
            if (is_open && rewriting.may_go_on) {
                const bool is_long = text.size() - at > LONG_WORD;
                return is_long ? wait_inside_word(text, rewriting) : wait_at(at, rewriting);
            }
            at = next;
            continue;
        }
        rewriting.by = {row != nullptr ? rule_name_of(row->everyday_class) : "lexicon"};
        if (entry != nullptr) {
            rewriting.by.file = entry->file->c_str();
            rewriting.by.line_number = entry->line_number;
        }
        rewriting.source = {at, found.length};
        rewriting.words.swap(found.words);
        const char after = end < text.size() ? text[end] : '\0';
        shield(after, rewriting.words);
        const char before = at == from ? rewriting.last : text[at - 1];
        set_apart(before, after, rewriting.words);
        rewriting.last = rewriting.words.back();
        return true;
    }
    rewriting.decided = text.size();
    rewriting.words.swap(found.words);
    return false;
}

}  // namespace kavi
