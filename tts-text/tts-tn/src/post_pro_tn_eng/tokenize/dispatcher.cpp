#include "dispatcher.h"

#include <cassert>

#include "../markup/markup_tags.h"
#include "../numbers/number_words.h"
#include "../readers/months.h"
#include "../readers/readers.h"
#include "../readers/sections.h"
#include "../readers/words.h"
#include "mark_readings.h"

namespace kavi::tn {

bool SectionDispatcher::next() {
    if (outcome_ != Outcome::go_on) return false;
    if (last_ != nullptr) section_ = section_after(last_);
    if (section_ == nullptr) {
        last_ = nullptr;
        return false;
    }
    first_ = section_;
    output_before_ = output_.length();
    reading_.clear();
    last_ = step();
    all_words_ = all_words_ && reading_.is_all_words();
    if (last_ == nullptr && outcome_ == Outcome::go_on) outcome_ = Outcome::ended;
    return true;
}

Section* SectionDispatcher::section_after(const Section* last) {
    if (window_ != nullptr) return window_->after(last);
    for (const Section* s = first_; s != last->m_pnext; s = s->m_pnext) {
        amount_end_.pass(s);
        greater_.pass(s);
    }
    return last->m_pnext;
}

void SectionDispatcher::append(std::string_view words) {
    if (!output_.append(words)) outcome_ = Outcome::full;
}

void SectionDispatcher::append_spaced(std::string_view words) {
    if (!output_.append_spaced(words)) outcome_ = Outcome::full;
}

Section* SectionDispatcher::read_as(ReadingRule rule, std::string_view words, Section* last) {
    rule_ = rule;
    append(words);
    return last;
}

Section* SectionDispatcher::reading_as(ReadingRule rule, Section* last) {
    rule_ = rule;
    append_spaced(reading_.text());
    return last;
}

Section* SectionDispatcher::step() {
    switch (section_->m_nmark) {
        case STRINGSYMBOL: return word();
        case NUMBERSYMBOL: return number();
        default: return mark();
    }
}

// ---- words ----

Section* SectionDispatcher::word() {
    const std::string_view text = section_->sz_char;
    switch (word_kind(text)) {
        case WordKind::telephone_label: return telephone();
        case WordKind::month:
            rule_ = ReadingRule::month;
            append_spaced(month_name(text));
            return section_;
        case WordKind::capitals:
            rule_ = ReadingRule::capital_letters;
            ask_lexicon(text);
            break;
        default: rule_ = ReadingRule::word; break;
    }
    append_spaced(text);
    return section_;
}

Section* SectionDispatcher::telephone() {
    Section* stop = section_->m_pnext;
    if (!is_mark(stop, '.')) {
        return read_as(ReadingRule::telephone_label, "telephone ", section_);
    }
    if (!phone_number_decide(stop->m_pnext)) {
        return read_as(ReadingRule::telephone_label, "telephone ", stop);
    }
    append("telephone number ");
    if (outcome_ == Outcome::full) return nullptr;
    Section* last = phone_number_read(stop->m_pnext, reading_);
    return reading_as(ReadingRule::telephone_number, last);
}

// ---- numbers ----

Section* SectionDispatcher::number() {
    const Section* next = section_->m_pnext;
    if (next == nullptr || next->sz_char[0] == ' ') return plain_number();
    if (is_mark(next, ',')) {
        return reading_as(ReadingRule::separated_number, str_number(section_, reading_));
    }
    if (is_ordinal_suffix(next)) {
        return reading_as(ReadingRule::ordinal, turn(section_, reading_));
    }
    if (data_decide(section_)) {
        return reading_as(ReadingRule::date, data_number(section_, reading_));
    }
    if (is_mark(next, '/')) {
        if (!fraction_decide(section_)) return plain_number();
        return reading_as(ReadingRule::fraction, fraction_number(section_, reading_));
    }
    if (is_amount_before_dollar()) return money(section_);
    if (decimal_decide(section_)) {
        return reading_as(ReadingRule::decimal, decimal_number(section_, reading_));
    }
    return is_mark(next, ':') ? clock_time() : plain_number();
}

// The answer of currency_decide, without walking over the same amount from each of its numbers.
bool SectionDispatcher::is_amount_before_dollar() {
    if (window_ != nullptr) return window_->is_amount_before_dollar(section_);
    return is_dollar(
        amount_end_.find(section_, [](const Section* s) { return !belongs_to_amount(s); }));
}

Section* SectionDispatcher::money(Section* amount) {
    return reading_as(ReadingRule::money, currrency_read(amount, reading_));
}

// The form code stands in the place of the section's class from here on. An incomplete time ends
// the walk without its words.
Section* SectionDispatcher::clock_time() {
    const TimeForm form = time_decide(section_);
    section_->m_nmark = form;
    Section* last = time_number(section_, form, reading_);
    return last != nullptr ? reading_as(ReadingRule::clock_time, last) : nullptr;
}

Section* SectionDispatcher::plain_number() {
    const std::string_view digits = section_->sz_char;
    if (is_year(value_of(section_))) {
        year_read(digits, reading_);
        return reading_as(ReadingRule::year, section_);
    }
    if (is_day_of_month(section_)) {
        append_ordinal(digits, reading_);
        return reading_as(ReadingRule::ordinal_day, section_);
    }
    append_number(digits, reading_);
    return reading_as(ReadingRule::cardinal, section_);
}

// ---- marks ----

Section* SectionDispatcher::mark() {
    const MarkReading* row = find_mark(section_->sz_char[0]);
    rule_ = row != nullptr ? ReadingRule::mark : ReadingRule::silent;
    if (row == nullptr) return section_;
    const bool before_number = is_number(section_->m_pnext);
    MarkWords words = words_of(*row, is_number(section_->m_pprevious), before_number);
    if (words == READER) {
        switch (row->mark) {
            case '<': return smaller();
            case '\'':
                rule_ = ReadingRule::contraction;
                process_single_quote(section_);
                return section_;
            case '(':
                if (before_number) return bracket();
                break;
            case '+': return plus_sign();
            default:  // "$"
                if (before_number) return money(section_->m_pnext);
        }
        words = row->otherwise;
        assert(words != READER);
    }
    row->spaced ? append_spaced(text_of(words)) : append(text_of(words));
    return section_;
}

Section* SectionDispatcher::bracket() {
    Section* last = nullptr;
    rule_ = ReadingRule::bracket;
    if (!bracket_read(section_, reading_, output_, last)) outcome_ = Outcome::full;
    return last != nullptr ? last : section_;
}

Section* SectionDispatcher::plus_sign() {
    Section* last = nullptr;
    rule_ = ReadingRule::plus_sign;
    if (!plus_read(section_, reading_, output_, last)) outcome_ = Outcome::full;
    return last != nullptr ? last : section_;
}

// A markup tag, or a "<" of the text.
Section* SectionDispatcher::smaller() {
    const char* text = section_->sz_char;
    if (begins_sentence_tag(text)) {
        rule_ = ReadingRule::markup_tag;
        append_spaced(text);
        return section_;
    }
    const Section* next = section_->m_pnext;
    const bool is_spoken = next == nullptr || begins_with(next->sz_char, "punc");
    append(text_of(smaller_words(is_spoken, !is_spoken && greater_follows(next))));
    return section_;
}

// Whether a section that begins with ">" stands somewhere from `next` on.
bool SectionDispatcher::greater_follows(const Section* next) {
    if (window_ != nullptr) return window_->greater_follows(section_);
    return greater_.find(next, [](const Section* s) { return s->sz_char[0] == '>'; }) != nullptr;
}

}  // namespace kavi::tn
