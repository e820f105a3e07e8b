#include "dispatcher.h"

#include <cstring>

#include "../common/markup_tags.h"
#include "../common/sections.h"
#include "../readers/amounts.h"
#include "../readers/parts.h"

namespace kavi {

using namespace tn;

namespace {

// Marks that are read by themselves: what is written behind a number section, and otherwise.
struct MarkReading {
    char mark;
    std::string_view behind_number;
    std::string_view otherwise;
};

// clang-format off
constexpr MarkReading MARK_READINGS[] = {
    {',',  "<punc=dou> ",    "<punc=dou> "},
    {'.',  "<punc=ju> ",     "<punc=ju> "},
    {':',  "<punc=mao> ",    "<punc=mao> "},
    {';',  "<punc=fen> ",    "<punc=fen> "},
    {'"',  "<punc=zuoyin> ", "<punc=zuoyin> "},
    {'?',  "<punc=wen>",     "<punc=wen>"},
    {')',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'{',  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {'}',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'[',  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {']',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'*',  "multiply ",      "asterisk "},
    {'/',  "divide ",        " "},
    {'%',  "percent ",       " "},
    {'=',  "equal ",         "equal "},
    {'>',  "larger ",        "larger "},
    {'@',  "at ",            "at "},
    {'#',  " ",              " "},
};
// clang-format on

}  // namespace

SectionDispatcher::SectionDispatcher(PostProTnEng& engine, Section* head, char* sz_target_text)
    : engine_(engine), output_(sz_target_text, SZ_TEXT_MAX_LEN), section_(head) {}

int SectionDispatcher::run() {
    while (section_ != nullptr) {
        const Section* first = section_;
        const Step step = dispatch();
        if (step == Step::full) return -1;
        if (step == Step::end || section_ == nullptr) return 0;
        section_ = section_->m_pnext;
        for (; first != section_; first = first->m_pnext) {
            amount_end_.pass(first);
            greater_.pass(first);
        }
    }
    return 0;
}

SectionDispatcher::Step SectionDispatcher::dispatch() {
    switch (section_->m_nmark) {
        case STRINGSYMBOL:
            return word();
        case NUMBERSYMBOL:
            return number();
        default:
            return mark();
    }
}

SectionDispatcher::Step SectionDispatcher::append(std::string_view words) {
    return output_.append(words) ? Step::on : Step::full;
}

SectionDispatcher::Step SectionDispatcher::append_reading() {
    if (!output_.append(reading_) || !output_.append(" ")) return Step::full;
    reading_[0] = '\0';
    return Step::on;
}

// The reading of the pattern that ends with `last`; without a last section it ends the walk.
SectionDispatcher::Step SectionDispatcher::append_reading(Section* last) {
    section_ = last;
    return append_reading();
}

// ---- words ----

SectionDispatcher::Step SectionDispatcher::word() {
    char* text = section_->sz_char;
    if (engine_.month_def(text) == 1) {
        engine_.month_read(text, reading_);
        return append_reading();
    }
    if (is_text(section_, "Tel")) return telephone();
    if (engine_.process_upper_case(section_, reading_) != 0) return append_reading();
    if (append(text) == Step::full) return Step::full;
    return append(" ");
}

SectionDispatcher::Step SectionDispatcher::telephone() {
    Section* stop = section_->m_pnext;
    if (!is_mark(stop, '.')) return append("telephone ");
    if (engine_.phone_number_decide(stop->m_pnext) == 0) {
        section_ = stop;
        return append("telephone ");
    }
    if (append("telephone number ") == Step::full) return Step::full;
    return append_reading(engine_.phone_number_read(stop->m_pnext, reading_));
}

// ---- numbers ----

SectionDispatcher::Step SectionDispatcher::number() {
    const Section* next = section_->m_pnext;
    if (is_mark(next, ',')) return append_reading(engine_.str_number(section_, reading_));
    if (is_ordinal_suffix(next)) return append_reading(engine_.turn(section_, reading_));
    if (is_mark(next, '/')) {
        if (engine_.data_decide(section_) == 1) {
            return append_reading(engine_.data_number(section_, reading_));
        }
        if (engine_.fraction_decide(section_) == 1) {
            return append_reading(engine_.fraction_number(section_, reading_));
        }
        return plain_number();
    }
    if (is_amount_before_dollar()) {
        return append_reading(engine_.currrency_read(section_, reading_));
    }
    if (is_mark(next, '.') && engine_.decimal_decide(section_) == 1) {
        return append_reading(engine_.decimal_number(section_, reading_));
    }
    if (is_mark(next, ':')) return clock_time();
    if (is_mark(next, '-') && engine_.data_decide(section_) == 1) {
        return append_reading(engine_.data_number(section_, reading_));
    }
    return plain_number();
}

// The answer of currency_decide, without walking over the same amount from each of its numbers.
bool SectionDispatcher::is_amount_before_dollar() {
    return is_dollar(
        amount_end_.find(section_, [](const Section* s) { return !belongs_to_amount(s); }));
}

SectionDispatcher::Step SectionDispatcher::clock_time() {
    const int form = engine_.time_decide(section_);
    if (form == 0) return plain_number();
    section_->m_nmark = form;
    Section* last = engine_.time_number(section_, reading_);
    if (last == nullptr) return Step::end;
    return append_reading(last);
}

bool SectionDispatcher::is_month(Section* section) {
    return section != nullptr && engine_.month_def(section->sz_char) == 1;
}

SectionDispatcher::Step SectionDispatcher::plain_number() {
    constexpr long FIRST_YEAR = 1100;
    constexpr long LAST_YEAR = 9999;
    char* text = section_->sz_char;
    const long value = value_of(text);
    Section* previous = section_->m_pprevious;
    if (value >= FIRST_YEAR && value <= LAST_YEAR) {
        engine_.year_read(text, reading_);
    } else if (is_month(ahead(section_, 2)) || is_month(previous) ||
               (previous != nullptr && is_month(previous->m_pprevious))) {
        engine_.str_turn(text, reading_);
    } else {
        engine_.number_to_string(text, reading_);
    }
    return append_reading();
}

// ---- marks ----

SectionDispatcher::Step SectionDispatcher::mark() {
    const char* text = section_->sz_char;
    const bool behind_number = is_number(section_->m_pprevious);
    switch (*text) {
        case ' ':
            return Step::on;
        case '<':
            return smaller();
        case '(':
            if (!engine_.process_bracket(section_, output_.text())) return Step::full;
            output_.catch_up();
            return Step::on;
        case '+':
            section_ = engine_.process_plus(section_, output_.text());
            if (section_ == nullptr) return Step::full;
            output_.catch_up();
            return Step::on;
        case '-':
            if (behind_number) return append("subtract ");
            return append(is_number(section_->m_pnext) ? "minus " : " ");
        case '~':
            if (append("arrive ") == Step::full) return Step::full;
            return append(" ");
        case '\'':
            section_ = engine_.process_single_quote(section_, output_.text());
            return Step::on;
        case '$':
            return dollars();
        default:
            break;
    }
    for (const MarkReading& row : MARK_READINGS) {
        if (row.mark == *text) return append(behind_number ? row.behind_number : row.otherwise);
    }
    return Step::on;
}

SectionDispatcher::Step SectionDispatcher::dollars() {
    Section* amount = section_->m_pnext;
    if (!is_number(amount)) return append(" ");
    return append_reading(engine_.currrency_read(amount, reading_));
}

// A markup tag, or a "<" of the text.
SectionDispatcher::Step SectionDispatcher::smaller() {
    if (begins_sentence_tag(section_->sz_char)) {
        if (append(section_->sz_char) == Step::full) return Step::full;
        return append(" ");
    }
    const Section* next = section_->m_pnext;
    if (next == nullptr || begins_with(next->sz_char, "punc")) return append("smaller ");
    const bool closed_later =
        greater_.find(next, [](const Section* s) { return s->sz_char[0] == '>'; }) != nullptr;
    return closed_later ? append(" ") : Step::on;
}

int PostProTnEng::section_process(Section* p_section, char* sz_target_text) {
    return SectionDispatcher(*this, p_section, sz_target_text).run();
}

}  // namespace kavi
