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

// What a place begins with.
enum class Begin { digit, word, mark };

struct RuleRow {
    Begin begin;
    EverydayClass everyday_class;
    everyday::Rule rule;
    const char* name;
};

// In the order in which they are tried. American dates are tried where the option says so.
constexpr RuleRow RULES[] = {
    {Begin::digit, EverydayClass::addresses, everyday::read_telephone, "everyday: addresses"},
    {Begin::digit, EverydayClass::years, everyday::read_date, "everyday: years"},
    {Begin::digit, EverydayClass::times, everyday::read_time, "everyday: times"},
    {Begin::digit, EverydayClass::currencies, everyday::read_amount_after, "everyday: currencies"},
    {Begin::digit, EverydayClass::units, everyday::read_unit, "everyday: units"},
    {Begin::digit, EverydayClass::years, everyday::read_year, "everyday: years"},
    {Begin::digit, EverydayClass::numbers, everyday::read_number, "everyday: numbers"},
    {Begin::word, EverydayClass::addresses, everyday::read_address, "everyday: addresses"},
    {Begin::word, EverydayClass::currencies, everyday::read_currency, "everyday: currencies"},
    {Begin::word, EverydayClass::titles, everyday::read_title, "everyday: titles"},
    {Begin::word, EverydayClass::years, everyday::read_date, "everyday: years"},
    {Begin::word, EverydayClass::roman, everyday::read_roman, "everyday: roman"},
    {Begin::word, EverydayClass::contractions, everyday::read_contraction,
     "everyday: contractions"},
    {Begin::word, EverydayClass::numbers, everyday::read_code, "everyday: numbers"},
    {Begin::word, EverydayClass::numbers, everyday::read_sign, "everyday: numbers"},
    {Begin::word, EverydayClass::letters, everyday::read_letters, "everyday: letters"},
    {Begin::mark, EverydayClass::addresses, everyday::read_telephone, "everyday: addresses"},
    {Begin::mark, EverydayClass::currencies, everyday::read_currency, "everyday: currencies"},
    {Begin::mark, EverydayClass::years, everyday::read_year, "everyday: years"},
    {Begin::mark, EverydayClass::numbers, everyday::read_sign, "everyday: numbers"},
    {Begin::mark, EverydayClass::contractions, everyday::read_contraction,
     "everyday: contractions"},
    {Begin::mark, EverydayClass::shields, everyday::read_shield, "everyday: shields"},
    {Begin::word, EverydayClass::letters, everyday::read_typography, "everyday: letters"},
};

constexpr const char* CLASS_NAMES[EVERYDAY_CLASSES] = {
    "titles",    "contractions", "currencies", "units",   "years",  "times",
    "addresses", "roman",        "numbers",    "letters", "shields"};

Begin begin_of(char c) {
    if (is_digit(c)) return Begin::digit;
    return is_of_word(c) ? Begin::word : Begin::mark;
}

// Adds text and words to what is read.
class Writer {
  public:
    Writer(std::string_view text, RewrittenText& rewritten) : text_(text), rewritten_(rewritten) {
        rewritten.text.clear();
        rewritten.rewritings.clear();
        rewritten.text.reserve(text.size());
    }

    void copy_up_to(std::size_t end) {
        rewritten_.text += text_.substr(from_, end - from_);
        from_ = end;
    }

    // Words stand by themselves: with a blank where a letter or a digit comes before or after.
    void rewrite(std::size_t length, std::string_view words, const char* rule, const char* file,
                 std::size_t line) {
        std::string& out = rewritten_.text;
        const std::size_t at = out.size();
        const auto is_joined = [](char c) { return is_of_word(c) || is_digit(c); };
        if (!out.empty() && is_joined(out.back()) && is_letter(words[0])) out += ' ';
        out += words;
        const std::size_t end = from_ + length;
        if (end < text_.size() && is_joined(text_[end]) && is_letter(words.back())) out += ' ';
        rewritten_.rewritings.push_back({{from_, length}, at, out.size() - at, rule, file, line});
        from_ = end;
    }

  private:
    std::string_view text_;
    RewrittenText& rewritten_;
    std::size_t from_ = 0;
};

// Finds markup tags from one place to the next: no stretch is searched twice for the end of one.
class TagFinder {
  public:
    explicit TagFinder(std::string_view text)
        : text_(text), end_(std::min(text.find('>'), text.size())) {}

    // How long the tag is that begins there; 0 for none.
    std::size_t length_at(std::size_t at) {
        if (text_[at] != '<' || tn::find_markup_tag(text_.substr(at)) == nullptr) return 0;
        if (end_ < at) end_ = std::min(text_.find('>', at), text_.size());
        return end_ < text_.size() ? end_ + 1 - at : 0;
    }

  private:
    std::string_view text_;
    std::size_t end_;  // of the tag that was looked for last, at its ">"
};

// The rules of the classes that are on, by what they begin with.
class RulesOn {
  public:
    RulesOn(unsigned classes, bool american_dates) : american_dates_(american_dates) {
        for (const RuleRow& row : RULES) {
            if ((classes >> static_cast<unsigned>(row.everyday_class) & 1U) == 0) continue;
            const auto begin = static_cast<std::size_t>(row.begin);
            rules_[begin][n_[begin]++] = &row;
        }
    }

    // The first rule that reads what begins at a place, or null.
    const RuleRow* find(const Place& place, Found& found) const {
        const Begin begin = begin_of(place.peek());
        if (begin == Begin::word && is_plain_word(place)) return nullptr;
        const auto* rules = rules_[static_cast<std::size_t>(begin)];
        for (std::size_t i = 0; i < n_[static_cast<std::size_t>(begin)]; ++i) {
            found.length = 0;
            found.words.clear();
            if (american_dates_ && rules[i]->rule == everyday::read_date) {
                everyday::read_american_date(place, found);
            }
            if (found.length == 0) rules[i]->rule(place, found);
            if (found.length > 0) return rules[i];
        }
        return nullptr;
    }

  private:
    // Most words: in small letters, with nothing after them that any rule reads; and none of the
    // abbreviations that are written without a full stop, "vs" and "tsp".
    static bool is_plain_word(const Place& place) {
        const char first = place.peek();
        const char second = place.peek(1);
        if (!is_lower(first)) return false;
        if ((first == 'v' || first == 't') && (second == 's' || second == 'b')) return false;
        const char after = place.peek(place.run(is_letter));
        return after == ' ' || after == ',' || after == '\0' || after == ';' || after == '?' ||
               after == '!' || after == ')' || after == '"' || after == '<';
    }

    const RuleRow* rules_[3][std::size(RULES)] = {};
    std::size_t n_[3] = {};
    bool american_dates_;
};

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

void Everyday::rewrite(std::string_view text, RewrittenText& rewritten) const {
    Writer writer(text, rewritten);
    const RulesOn rules(classes_, american_dates_);
    TagFinder tags(text);
    Found found;
    for (std::size_t at = 0; at < text.size();) {
        const Place place = {text, at};
        if (const std::size_t tag = tags.length_at(at); tag > 0) {
            at += tag;
            continue;
        }
        if (const Lexicon::Entry* entry =
                lexicon_ != nullptr ? lexicon_->find(text, at) : nullptr) {
            writer.copy_up_to(at);
            writer.rewrite(entry->written.size(), entry->spoken, "lexicon",
                           lexicon_->file().c_str(), entry->line_number);
            at += entry->written.size();
        } else if (const RuleRow* row = rules.find(place, found)) {
            writer.copy_up_to(at);
            writer.rewrite(found.length, found.words.empty() ? " " : found.words, row->name,
                           nullptr, 0);
            at += found.length;
        } else {
            at = next_place(place);
        }
    }
    writer.copy_up_to(text.size());
}

}  // namespace kavi
