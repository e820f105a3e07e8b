// One pass over a text: at each offset where a word, a number or a mark begins, the lexicon and the
// rules that may read it.

#include <algorithm>
#include <utility>

#include "dispatch.h"
#include "own_words.h"
#include "tokens.h"
#include "tts_everyday.h"

namespace kavi {

namespace {

using everyday::Cursor;
using everyday::Found;
using everyday::is_digit;
using everyday::is_letter;
using everyday::is_outside_ascii;
using everyday::OwnWords;
using everyday::RuleRow;
using everyday::RuleSet;

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

// Whether a text that ends where `text` does may go on as the name of a markup tag.
bool is_begin_of_name(std::string_view text) {
    return std::any_of(std::begin(tn::MARKUP_TAGS), std::end(tn::MARKUP_TAGS),
                       [=](const tn::MarkupTag& tag) { return tn::begins_with(tag.prefix, text); });
}

// The markup tag that begins at `at`: its length, or 0 for none. `searched` is of find_ahead().
// `is_open` is set if the answer could change when more text arrives, here and below.
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

// Whether a rule reads what begins at an offset, within the bound of what it can see.
bool has_found(everyday::Rule rule, const Cursor& cursor, Found& found, bool& is_open) {
    found.length = 0;
    found.words.clear();
    found.name.length = 0;
    cursor.forget_bound();
    rule(cursor, found);
    is_open = is_open || cursor.has_met_end();
    return found.length > 0 && !cursor.has_met_bound();
}

struct Settings {
    unsigned classes;
    bool american_dates;
};

// The first enabled rule of `rules` that reads what begins at `at` and does not conflict with the
// user's lexicon, or null. `entry` is that of a word that the user has in its place, or null.
const RuleRow* find_rule(std::string_view text, std::size_t at, RuleSet rules,
                         const Settings& settings, OwnWords& own_words, Found& found,
                         const Lexicon::Entry*& entry, bool& is_open) {
    const Cursor cursor(text, at);
    while (rules != 0) {
        const RuleRow& row = everyday::take_first(rules);
        if ((settings.classes >> static_cast<unsigned>(row.everyday_class) & 1U) == 0) continue;
        const bool is_found = (settings.american_dates && row.rule == everyday::read_date &&
                               has_found(everyday::read_american_date, cursor, found, is_open)) ||
                              has_found(row.rule, cursor, found, is_open);
        if (!is_found) continue;
        // An address is one word, whatever is in it.
        entry = nullptr;
        if (row.everyday_class == EverydayClass::addresses) return &row;
        if (own_words.allow(at, found, entry)) return &row;
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

// Where the next word, number or mark begins after that at `at`, past blanks; `run_end` is where
// what it has of ASCII ends.
std::size_t next_offset(std::string_view text, std::size_t at, std::size_t run_end, bool& is_open) {
    const bool is_whole =
        !is_outside_ascii(text[at]) && (run_end == text.size() || !is_outside_ascii(text[run_end]));
    std::size_t next = is_whole ? run_end : at + everyday::cluster_length(text, at);
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
    // The last rewriting was shielded already, so `shields` is off where it ended.
    const unsigned shields = 1U << static_cast<unsigned>(EverydayClass::shields);
    const std::size_t words_end = rewriting.source.length > 0 ? from : text.size();
    OwnWords own_words(lexicon_, text);
    Found found;
    found.words = std::move(rewriting.words);  // for its memory
    std::size_t at = std::max(from, rewriting.decided);
    bool is_open = false;  // more text could make the answer another
    if (rewriting.is_inside_word) {
        const std::size_t run_end = everyday::run_at(text, at).end;
        const std::size_t next = next_offset(text, at, run_end, is_open);
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
        const everyday::Run run = everyday::run_at(text, at);
        is_open = is_open || run.is_open;
        const Settings settings = {classes, american_dates_};
        const RuleRow* row = nullptr;
        if (run.rules != 0) {
            row = find_rule(text, at, run.rules, settings, own_words, found, entry, is_open);
        }
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
            const std::size_t next = next_offset(text, at, run.end, is_open);
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
        rewriting.words = std::move(found.words);
        const char after = end < text.size() ? text[end] : '\0';
        shield(after, rewriting.words);
        const char before = at == from ? rewriting.last : text[at - 1];
        set_apart(before, after, rewriting.words);
        rewriting.last = rewriting.words.back();
        return true;
    }
    rewriting.decided = text.size();
    rewriting.words = std::move(found.words);
    return false;
}

}  // namespace kavi
