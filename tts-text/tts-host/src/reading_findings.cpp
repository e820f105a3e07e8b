#include "reading_findings.h"

#include <algorithm>

namespace kavi::host {

namespace {

// Whether a character stands for a word, as punctuation does not.
bool is_sign(char c) {
    switch (c) {
        case '#':
        case '%':
        case '&':
        case '+':
        case '\\':
        case '^':
        case '_':
        case '`':
        case '|':
        case '<':
        case '>':
        case '=':
        case '*':
        case '~':
        case '@':
        case '$': return true;
        default: return false;
    }
}

// ReadingRule::telephone_number is not among them: the full stop of "Tel." ends the sentence.
bool is_telephone_number(tn::ReadingRule rule) {
    return rule == tn::ReadingRule::bracket || rule == tn::ReadingRule::plus_sign;
}

bool is_zero(std::string_view digits) {
    return digits.find_first_not_of('0') == std::string_view::npos;
}

bool is_zero_number(const tn::Token& token) {
    return is_zero(token.text());
}

// Whether a zero among the numbers of a step is read, or is one that English does not say: the last
// zeros of "10:00" and "1,000", the first of "0.5", that of "$0.50" and of "$5.00".
bool is_zero_read(const tn::ReadingStep& step, const tn::Token* zero) {
    if (step.reading.text().find("zero") != std::string_view::npos) return true;
    switch (step.rule) {
        case tn::ReadingRule::decimal: return true;
        case tn::ReadingRule::money:
            return std::any_of(step.first, step.end, [](const tn::Token& token) {
                return tn::is_number(&token) && !is_zero(token.text());
            });
        case tn::ReadingRule::clock_time:
        case tn::ReadingRule::separated_number: return zero != step.first;
        default: return false;
    }
}

bool is_read(const tn::ReadingStep& step, const tn::Token* number) {
    if (is_zero_number(*number)) return is_zero_read(step, number);
    return step.reading.digits_read(number->text()) == number->length;
}

}  // namespace

void ReadingFindings::add_step(const tn::ReadingStep& step) {
    const tn::Token* longest = step.first;  // the first of the longest numbers
    std::size_t longest_length = 0;
    if (step.end - step.first == 1 && step.first->length == 1) {
        add_mark(step.first->text(), step.output_length);
    }
    for (const tn::Token* token = step.first; token != step.end; ++token) {
        if (tn::is_number(token)) {
            if (!is_read(step, token)) report(token->text(), Finding::digits_not_read);
            if (token->length > longest_length) {
                longest = token;
                longest_length = token->length;
            }
        } else if (is_telephone_number(step.rule) && tn::is_tag(token)) {
            report(token->text(), Finding::tag_in_telephone_number);
        }
    }
    if (step.reading.is_cut()) report(longest->text(), Finding::reading_cut);
    speakable_length_ = step.output_length;
    is_after_money_ = step.rule == tn::ReadingRule::money;
}

// A sign without a letter in the speakable text is reported once in a text.
void ReadingFindings::add_mark(std::string_view mark, int speakable_length) {
    if (!is_sign(mark[0])) return;
    if (mark[0] == '$' && is_after_money_) return;
    const bool is_said =
        std::any_of(speakable_ + speakable_length_, speakable_ + speakable_length, tn::is_letter);
    const auto kind = static_cast<unsigned char>(mark[0]);
    if (is_said || marks_[kind]) return;
    marks_.set(kind);
    report(mark, Finding::mark_not_spoken);
}

void ReadingFindings::report(std::string_view source, Finding finding) {
    findings_.push_back({static_cast<std::size_t>(source.data() - sentence_), finding});
}

}  // namespace kavi::host
