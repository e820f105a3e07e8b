// One switch for each kind of section decides which reader reads a pattern.

#include "dispatcher.h"

#include <cassert>
#include <string_view>

#include "../numbers/number_words.h"
#include "../readers/months.h"
#include "../readers/readers.h"
#include "../readers/words.h"
#include "mark_readings.h"

namespace kavi::tn {

namespace {

// Skips blanks, which are silent. Only an observer is shown a step for each.
const Token* after_blanks(const Token* token) {
    while (token->kind == MARKSYMBOL && token->first() == ' ') ++token;
    return token;
}

// One walk over the tokens of a sentence.
class SectionDispatcher {
  public:
    // cppcheck-suppress uninitMemberVar ; the reading makes its text empty
    SectionDispatcher(TokenWindow& tokens, BoundedText& output)
        : tokens_(tokens), output_(output) {}
    SectionDispatcher(const SectionDispatcher&) = delete;
    SectionDispatcher& operator=(const SectionDispatcher&) = delete;

    WalkResult walk(const Token* first, const ReadingObserver* observer) {
        const Token* next = first;
        while (outcome_ == Outcome::go_on) {
            first_ = tokens_.at(next);
            if (!is_section(first_)) break;
            reading_.clear();
            next = step();
            if (is_section(next)) {
                ++next;
            } else if (outcome_ == Outcome::go_on) {
                outcome_ = Outcome::ended;
            }
            if (observer != nullptr) {
                observer->on_step(observer->context,
                                  {rule_, outcome_, first_, next, reading_, output_.length()});
            } else {
                next = after_blanks(next);
            }
        }
        return {outcome_, reading_.is_all_words()};
    }

  private:
    void append(std::string_view words) {
        if (!output_.append(words)) outcome_ = Outcome::full;
    }

    void append_spaced(std::string_view words) {
        if (!output_.append_spaced(words)) outcome_ = Outcome::full;
    }

    const Token* append_mark(MarkWords words, bool spaced) {
        if (!tn::append_mark(words, spaced, output_)) outcome_ = Outcome::full;
        return first_;
    }

    const Token* read_as(ReadingRule rule, std::string_view words, const Token* last) {
        rule_ = rule;
        append(words);
        return last;
    }

    const Token* reading_as(ReadingRule rule, const Token* last) {
        rule_ = rule;
        append_spaced(reading_.text());
        return last;
    }

    const Token* read(ReadingRule rule, Reader* reader, const Token* pattern) {
        return reading_as(rule, reader(pattern, reading_));
    }

    const Token* step() {
        switch (first_->kind) {
            case STRINGSYMBOL: return word();
            case NUMBERSYMBOL: return number();
            default: return mark();
        }
    }

    // ---- Each reads the pattern at first_ and returns the last token consumed, or the token after
    // the last section ----

    const Token* word() {
        const std::string_view text = first_->text();
        switch (word_kind(text)) {
            case WordKind::telephone_label: return telephone();
            case WordKind::month:
                rule_ = ReadingRule::month;
                append_spaced(month_name(text));
                return first_;
            case WordKind::capitals:
                rule_ = ReadingRule::capital_letters;
                ask_lexicon(text);
                break;
            default: rule_ = ReadingRule::word; break;
        }
        append_spaced(text);
        return first_;
    }

    const Token* telephone() {
        const Token* stop = first_ + 1;
        if (!is_mark(stop, '.')) return read_as(ReadingRule::telephone_label, "telephone ", first_);
        if (!phone_number_decide(stop + 1)) {
            return read_as(ReadingRule::telephone_label, "telephone ", stop);
        }
        append("telephone number ");
        if (outcome_ == Outcome::full) return first_;
        return read(ReadingRule::telephone_number, phone_number_read, stop + 1);
    }

    // ---- numbers ----

    const Token* number() {
        const Token* next = first_ + 1;
        const char mark = next->length == 1 ? next->first() : '\0';
        if (mark == ',') return read(ReadingRule::separated_number, str_number, first_);
        if (is_ordinal_suffix(next)) return read(ReadingRule::ordinal, turn, first_);
        if (mark != '/' && tokens_.is_amount_before_dollar(first_)) return money(first_);
        switch (mark) {
            case ':': return clock_time();
            case '/':
            case '-':
                if (data_decide(first_)) return read(ReadingRule::date, data_number, first_);
                if (fraction_decide(first_)) {
                    return read(ReadingRule::fraction, fraction_number, first_);
                }
                break;
            case '.':
                if (decimal_decide(first_)) {
                    return read(ReadingRule::decimal, decimal_number, first_);
                }
                break;
            default: break;
        }
        return plain_number();
    }

    const Token* money(const Token* amount) {
        return read(ReadingRule::money, currrency_read, amount);
    }

    // In a queue of the host, the TimeForm replaces the class of the section. An incomplete time
    // appends nothing and ends the walk.
    const Token* clock_time() {
        const TimeForm form = time_decide(first_);
        if (first_->section != nullptr) first_->section->m_nmark = form;
        const Token* last = time_number(first_, form, reading_);
        return is_section(last) ? reading_as(ReadingRule::clock_time, last) : last;
    }

    const Token* plain_number() {
        const std::string_view digits = first_->text();
        if (digits.size() >= YEAR_DIGITS && is_year(digits)) {
            year_read(digits, reading_);
            return reading_as(ReadingRule::year, first_);
        }
        if (is_day_of_month(first_)) {
            append_ordinal(digits, reading_);
            return reading_as(ReadingRule::ordinal_day, first_);
        }
        append_number(digits, reading_);
        return reading_as(ReadingRule::cardinal, first_);
    }

    // ---- marks ----

    const Token* mark() {
        const MarkReading* row = find_mark(first_->first());
        rule_ = row != nullptr ? ReadingRule::mark : ReadingRule::silent;
        if (row == nullptr) return first_;
        const bool before_number = is_number(first_ + 1);
        MarkWords words = words_of(*row, is_number(first_ - 1), before_number);
        if (words == READER) {
            switch (row->mark) {
                case '<': return smaller();
                case '\'': return apostrophe();
                case '(':
                    if (before_number) return read_mark(ReadingRule::bracket, bracket_read);
                    break;
                case '+': return read_mark(ReadingRule::plus_sign, plus_read);
                default:  // "$"
                    if (before_number) return money(first_ + 1);
            }
            words = row->otherwise;
            assert(words != READER);
        }
        return append_mark(words, row->spaced);
    }

    const Token* read_mark(ReadingRule rule, MarkReader* reader) {
        rule_ = rule;
        const Token* last = reader(first_, reading_, output_);
        if (last != nullptr) return last;
        outcome_ = Outcome::full;
        return first_;
    }

    // A markup tag, or a "<" of the text.
    const Token* smaller() {
        if (is_tag(first_)) {
            rule_ = ReadingRule::markup_tag;
            append_spaced(first_->text());
            return first_;
        }
        const Token* next = first_ + 1;
        const bool is_spoken = !is_section(next) || begins_with(next->text(), "punc");
        const bool greater_follows = !is_spoken && tokens_.greater_follows(first_);
        return append_mark(smaller_words(is_spoken, greater_follows), false);
    }

    const Token* apostrophe() {
        rule_ = ReadingRule::contraction;
        const std::string_view word = process_single_quote(first_);
        if (word.empty()) return first_;
        const Token* letters = first_ + 1;
        if (letters->kind != STRINGSYMBOL) {
            tokens_.set_length(letters, word.size());
            return first_;
        }
        append_spaced(word);
        return letters;
    }

    TokenWindow& tokens_;
    BoundedText& output_;
    char reading_text_[WORD_MAX_LEN];
    Reading reading_{reading_text_, 0};
    ReadingRule rule_ = ReadingRule::silent;
    Outcome outcome_ = Outcome::go_on;
    const Token* first_ = nullptr;
};

}  // namespace

WalkResult walk(TokenWindow& tokens, const Token* first, BoundedText& output,
                const ReadingObserver* observer) {
    return SectionDispatcher(tokens, output).walk(first, observer);
}

}  // namespace kavi::tn
