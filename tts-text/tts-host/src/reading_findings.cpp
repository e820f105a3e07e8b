#include "reading_findings.h"

namespace kavi::host {

namespace {

// After "Tel." none comes here, since that full stop ends a sentence.
bool is_telephone_number(tn::ReadingRule rule) {
    return rule == tn::ReadingRule::bracket || rule == tn::ReadingRule::plus_sign;
}

}  // namespace

void ReadingFindings::add_step(const tn::SectionDispatcher& step) {
    const tn::Token* longest = step.first();  // number, of which the first
    std::size_t longest_length = 0;
    for (const tn::Token* token = step.first(); token != step.end(); ++token) {
        if (tn::is_number(token)) {
            if (step.reading().digits_read(token->text()) < token->length) {
                report(token, Finding::digits_not_read);
            }
            if (token->length > longest_length) {
                longest = token;
                longest_length = token->length;
            }
        } else if (is_telephone_number(step.rule()) && tn::is_tag(token)) {
            report(token, Finding::tag_in_telephone_number);
        }
    }
    if (step.reading().is_cut()) report(longest, Finding::reading_cut);
}

void ReadingFindings::report(const tn::Token* token, Finding finding) {
    findings_.push_back({static_cast<std::size_t>(token->begin - sentence_), finding});
}

}  // namespace kavi::host
