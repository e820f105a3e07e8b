#include "dispatcher.h"

#include <cstring>

#include "../markup/markup_tags.h"
#include "../readers/sections.h"
#include "../readers/amounts.h"
#include "../readers/parts.h"
#include "mark_readings.h"
#include "plain_text.h"

namespace kavi {

using namespace tn;

SectionDispatcher::SectionDispatcher(PostProTnEng& engine, Section* head, BoundedText& output)
    : engine_(engine), output_(output), section_(head) {
    reading_[0] = '\0';
}

ReadingRule SectionDispatcher::run() {
    ReadingRule rule = ReadingRule::silent;
    while (section_ != nullptr) {
        const Section* first = section_;
        rule = step();
        if (rule == ReadingRule::full || rule == ReadingRule::end) break;
        if (section_ == nullptr) return ReadingRule::end;  // a reader ran out of sections
        advance(first);
    }
    return rule;
}

ReadingRule SectionDispatcher::step() {
    switch (section_->m_nmark) {
        case STRINGSYMBOL: return word();
        case NUMBERSYMBOL: return number();
        default: return mark();
    }
}

void SectionDispatcher::advance(const Section* first_of_step) {
    if (section_ == nullptr) return;  // a reader ran out of sections
    section_ = section_->m_pnext;
    for (; first_of_step != section_; first_of_step = first_of_step->m_pnext) {
        amount_end_.pass(first_of_step);
        greater_.pass(first_of_step);
    }
}

ReadingRule SectionDispatcher::append(std::string_view words, ReadingRule rule) {
    return output_.append(words) ? rule : ReadingRule::full;
}

ReadingRule SectionDispatcher::append_spaced(std::string_view words, ReadingRule rule) {
    return output_.append(words) && output_.append(" ") ? rule : ReadingRule::full;
}

ReadingRule SectionDispatcher::append_reading(ReadingRule rule) {
    const ReadingRule result = append_spaced(reading_, rule);
    reading_[0] = '\0';
    return result;
}

// The reading of the pattern that ends with `last`; without a last section it ends the walk.
ReadingRule SectionDispatcher::append_reading(Section* last, ReadingRule rule) {
    section_ = last;
    return append_reading(rule);
}

// ---- words ----

ReadingRule SectionDispatcher::word() {
    char* text = section_->sz_char;
    if (is_plain_word(text)) return append_spaced(text, ReadingRule::word);
    if (engine_.month_def(text) == 1) {
        engine_.month_read(text, reading_);
        return append_reading(ReadingRule::month);
    }
    if (is_text(section_, "Tel")) return telephone();
    if (engine_.process_upper_case(section_, reading_) != 0) {
        return append_reading(ReadingRule::capital_letters);
    }
    return append_spaced(text, ReadingRule::word);
}

ReadingRule SectionDispatcher::telephone() {
    Section* stop = section_->m_pnext;
    if (!is_mark(stop, '.')) return append("telephone ", ReadingRule::telephone_label);
    if (engine_.phone_number_decide(stop->m_pnext) == 0) {
        section_ = stop;
        return append("telephone ", ReadingRule::telephone_label);
    }
    if (!output_.append("telephone number ")) return ReadingRule::full;
    return append_reading(engine_.phone_number_read(stop->m_pnext, reading_),
                          ReadingRule::telephone_number);
}

// ---- numbers ----

ReadingRule SectionDispatcher::number() {
    const Section* next = section_->m_pnext;
    if (is_mark(next, ',')) {
        return append_reading(engine_.str_number(section_, reading_),
                              ReadingRule::separated_number);
    }
    if (is_ordinal_suffix(next)) {
        return append_reading(engine_.turn(section_, reading_), ReadingRule::ordinal);
    }
    if (is_mark(next, '/')) {
        if (engine_.data_decide(section_) == 1) return date();
        if (engine_.fraction_decide(section_) == 1) {
            return append_reading(engine_.fraction_number(section_, reading_),
                                  ReadingRule::fraction);
        }
        return plain_number();
    }
    if (is_amount_before_dollar()) return money(section_);
    if (is_mark(next, '.') && engine_.decimal_decide(section_) == 1) {
        return append_reading(engine_.decimal_number(section_, reading_), ReadingRule::decimal);
    }
    if (is_mark(next, ':')) return clock_time();
    if (is_mark(next, '-') && engine_.data_decide(section_) == 1) return date();
    return plain_number();
}

// The answer of currency_decide, without walking over the same amount from each of its numbers.
bool SectionDispatcher::is_amount_before_dollar() {
    return is_dollar(
        amount_end_.find(section_, [](const Section* s) { return !belongs_to_amount(s); }));
}

ReadingRule SectionDispatcher::date() {
    return append_reading(engine_.data_number(section_, reading_), ReadingRule::date);
}

ReadingRule SectionDispatcher::money(Section* amount) {
    return append_reading(engine_.currrency_read(amount, reading_), ReadingRule::money);
}

ReadingRule SectionDispatcher::clock_time() {
    section_->m_nmark = engine_.time_decide(section_);
    Section* last = engine_.time_number(section_, reading_);
    if (last == nullptr) return ReadingRule::end;
    return append_reading(last, ReadingRule::clock_time);
}

bool SectionDispatcher::is_month(Section* section) {
    return section != nullptr && engine_.month_def(section->sz_char) == 1;
}

ReadingRule SectionDispatcher::plain_number() {
    constexpr long FIRST_YEAR = 1100;
    constexpr long LAST_YEAR = 9999;
    char* text = section_->sz_char;
    const long value = value_of(text);
    if (value >= FIRST_YEAR && value <= LAST_YEAR) {
        engine_.year_read(text, reading_);
        return append_reading(ReadingRule::year);
    }
    Section* previous = section_->m_pprevious;
    if (is_month(ahead(section_, 2)) || is_month(previous) ||
        (previous != nullptr && is_month(previous->m_pprevious))) {
        engine_.str_turn(text, reading_);
        return append_reading(ReadingRule::ordinal_day);
    }
    engine_.number_to_string(text, reading_);
    return append_reading(ReadingRule::cardinal);
}

// ---- marks ----

ReadingRule SectionDispatcher::mark() {
    const char* text = section_->sz_char;
    const bool behind_number = is_number(section_->m_pprevious);
    switch (*text) {
        case ' ': return ReadingRule::silent;
        case '<': return smaller();
        case '(':
            if (!engine_.process_bracket(section_, output_.text())) return ReadingRule::full;
            output_.catch_up();
            return ReadingRule::bracket;
        case '+':
            section_ = engine_.process_plus(section_, output_.text());
            if (section_ == nullptr) return ReadingRule::full;
            output_.catch_up();
            return ReadingRule::plus_sign;
        case '-':
            if (behind_number) return append("subtract ", ReadingRule::mark);
            return append(is_number(section_->m_pnext) ? "minus " : " ", ReadingRule::mark);
        case '~': return append_spaced("arrive ", ReadingRule::mark);
        case '\'':
            section_ = engine_.process_single_quote(section_, output_.text());
            return ReadingRule::contraction;
        case '$':
            if (is_number(section_->m_pnext)) return money(section_->m_pnext);
            return append(" ", ReadingRule::mark);
        default: break;
    }
    const MarkReading* row = find_mark(*text);
    if (row == nullptr) return ReadingRule::silent;
    return append(behind_number ? row->behind_number : row->otherwise, ReadingRule::mark);
}

// A markup tag, or a "<" of the text.
ReadingRule SectionDispatcher::smaller() {
    if (begins_sentence_tag(section_->sz_char)) {
        return append_spaced(section_->sz_char, ReadingRule::markup_tag);
    }
    const Section* next = section_->m_pnext;
    if (next == nullptr || begins_with(next->sz_char, "punc")) {
        return append("smaller ", ReadingRule::mark);
    }
    const bool closed_later =
        greater_.find(next, [](const Section* s) { return s->sz_char[0] == '>'; }) != nullptr;
    return closed_later ? append(" ", ReadingRule::mark) : ReadingRule::silent;
}

int PostProTnEng::section_process(Section* p_section, char* sz_target_text) {
    tn::BoundedText output(sz_target_text, SZ_TEXT_MAX_LEN);
    return SectionDispatcher(*this, p_section, output).run() == ReadingRule::full ? -1 : 0;
}

}  // namespace kavi
