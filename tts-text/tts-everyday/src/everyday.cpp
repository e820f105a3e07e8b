// One pass over a text: at each place where a word, a number or a mark begins, the lexicon and the
// rules that may read what begins with such a character.

#include <algorithm>
#include <iterator>

#include "for_everyday.h"
#include "rules.h"
#include "tts_everyday.h"

namespace kavi {

namespace {

using everyday::Found;
using everyday::is_digit;
using everyday::is_letter;
using everyday::is_lower;
using everyday::is_of_word;
using everyday::Place;

struct RuleRow {
    EverydayClass everyday_class;
    everyday::Rule rule;
    const char* name;
};

// The rules for what begins with a digit, a letter or another mark, in the order in which they are
// tried. American dates are tried where the option says so.
constexpr RuleRow DIGIT_RULES[] = {
    {EverydayClass::addresses, everyday::read_telephone, "everyday: addresses"},
    {EverydayClass::years, everyday::read_date, "everyday: years"},
    {EverydayClass::times, everyday::read_time, "everyday: times"},
    {EverydayClass::currencies, everyday::read_amount_after, "everyday: currencies"},
    {EverydayClass::units, everyday::read_unit, "everyday: units"},
    {EverydayClass::years, everyday::read_year, "everyday: years"},
    {EverydayClass::numbers, everyday::read_number, "everyday: numbers"},
};
constexpr RuleRow WORD_RULES[] = {
    {EverydayClass::addresses, everyday::read_address, "everyday: addresses"},
    {EverydayClass::currencies, everyday::read_currency, "everyday: currencies"},
    {EverydayClass::titles, everyday::read_title, "everyday: titles"},
    {EverydayClass::years, everyday::read_date, "everyday: years"},
    {EverydayClass::roman, everyday::read_roman, "everyday: roman"},
    {EverydayClass::contractions, everyday::read_contraction, "everyday: contractions"},
    {EverydayClass::numbers, everyday::read_code, "everyday: numbers"},
    {EverydayClass::numbers, everyday::read_sign, "everyday: numbers"},
    {EverydayClass::letters, everyday::read_letters, "everyday: letters"},
    {EverydayClass::letters, everyday::read_typography, "everyday: letters"},
};
constexpr RuleRow MARK_RULES[] = {
    {EverydayClass::addresses, everyday::read_telephone, "everyday: addresses"},
    {EverydayClass::currencies, everyday::read_currency, "everyday: currencies"},
    {EverydayClass::years, everyday::read_year, "everyday: years"},
    {EverydayClass::numbers, everyday::read_sign, "everyday: numbers"},
    {EverydayClass::contractions, everyday::read_contraction, "everyday: contractions"},
    {EverydayClass::shields, everyday::read_shield, "everyday: shields"},
};

constexpr const char* CLASS_NAMES[EVERYDAY_CLASSES] = {
    "titles",    "contractions", "currencies", "units",   "years",  "times",
    "addresses", "roman",        "numbers",    "letters", "shields"};

struct Rules {
    const RuleRow* begin;
    const RuleRow* end;
};

Rules rules_for(char c) {
    if (is_digit(c)) return {std::begin(DIGIT_RULES), std::end(DIGIT_RULES)};
    if (is_of_word(c)) return {std::begin(WORD_RULES), std::end(WORD_RULES)};
    return {std::begin(MARK_RULES), std::end(MARK_RULES)};
}

// The markup tag that begins at `at`: its length, or 0 for none. No stretch is searched twice for
// the end of one: `tag_end` is where the last search ended.
std::size_t tag_length(std::string_view text, std::size_t at, std::size_t& tag_end) {
    if (text[at] != '<' || tn::find_markup_tag(text.substr(at)) == nullptr) return 0;
    if (tag_end <= at) tag_end = std::min(text.find('>', at), text.size());
    return tag_end < text.size() ? tag_end + 1 - at : 0;
}

// Most words: in small letters, with nothing after them that any rule reads; and none of the
// abbreviations that are written without a full stop, "vs" and "tsp".
bool is_plain_word(const Place& place) {
    const char first = place.peek();
    const char second = place.peek(1);
    if (!is_lower(first)) return false;
    if ((first == 'v' || first == 't') && (second == 's' || second == 'b')) return false;
    const char after = place.peek(place.run(is_letter));
    return after == ' ' || after == ',' || after == '\0' || after == ';' || after == '?' ||
           after == '!' || after == ')' || after == '"' || after == '<';
}

// The first of the rules that are on and read what begins at a place, or null.
const RuleRow* find_rule(const Place& place, unsigned classes, bool american_dates, Found& found) {
    if (is_plain_word(place)) return nullptr;
    const Rules rules = rules_for(place.peek());
    for (const RuleRow* row = rules.begin; row != rules.end; ++row) {
        if ((classes >> static_cast<unsigned>(row->everyday_class) & 1U) == 0) continue;
        found.length = 0;
        found.words.clear();
        if (american_dates && row->rule == everyday::read_date) {
            everyday::read_american_date(place, found);
        }
        if (found.length == 0) row->rule(place, found);
        if (found.length > 0) return row;
    }
    return nullptr;
}

// Makes words be words of their own between two characters, with a blank where those are of a word
// or a number; after "<", so that they do not make a markup tag.
void set_apart(char before, char after, std::string& words) {
    if (words.empty()) words = " ";
    const auto joins = [](char c) { return is_of_word(c) || is_digit(c); };
    if (is_letter(words[0]) && (joins(before) || before == '<')) words.insert(0, 1, ' ');
    if (is_letter(words.back()) && joins(after)) words += ' ';
}

// Where the next word, number or mark begins after that at a place, past blanks.
std::size_t next_place(const Place& place) {
    const char c = place.peek();
    std::size_t length = 1;
    if (is_of_word(c)) {
        length = place.run(is_of_word);
    } else if (is_digit(c)) {
        length = place.run(is_digit);
    }
    return place.at + length + place.run([](char blank) { return blank == ' '; }, length);
}

}  // namespace

const char* name_of(EverydayClass everyday_class) {
    return CLASS_NAMES[static_cast<int>(everyday_class)];
}

std::optional<EverydayClass> everyday_class_of(std::string_view name) {
    for (int i = 0; i < EVERYDAY_CLASSES; ++i) {
        if (name == CLASS_NAMES[i]) return static_cast<EverydayClass>(i);
    }
    return {};
}

bool Everyday::next(std::string_view text, Rewriting& rewriting) const {
    const std::size_t from = rewriting.source.offset + rewriting.source.length;
    const char last = !rewriting.words.empty() ? rewriting.words.back() : '\0';
    Found found;
    found.words.swap(rewriting.words);  // for its memory
    for (std::size_t at = from; at < text.size();) {
        if (const std::size_t tag = tag_length(text, at, rewriting.tag_end); tag > 0) {
            at += tag;
            continue;
        }
        const Place place = {text, at};
        if (const Lexicon::Entry* entry =
                lexicon_ != nullptr ? lexicon_->find(text, at) : nullptr) {
            found.length = entry->written.size();
            found.words = entry->spoken;
            rewriting.by = {"lexicon", lexicon_->file().c_str(), entry->line_number};
        } else if (const RuleRow* row = find_rule(place, classes_, american_dates_, found)) {
            rewriting.by = {row->name};
        } else {
            at = next_place(place);
            continue;
        }
        rewriting.source = {at, found.length};
        rewriting.words.swap(found.words);
        set_apart(at == from ? last : place.before(), place.peek(found.length), rewriting.words);
        return true;
    }
    rewriting.words.swap(found.words);
    return false;
}

}  // namespace kavi
