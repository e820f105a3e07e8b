#include "reading_findings.h"

#include <cstring>

namespace kavi::host {

namespace {

// After "Tel." none comes here, since that full stop ends a sentence.
bool is_telephone_number(tn::ReadingRule rule) {
    return rule == tn::ReadingRule::bracket || rule == tn::ReadingRule::plus_sign;
}

}  // namespace

void ReadingFindings::add_step(const tn::SectionDispatcher& step) {
    const Section* longest = step.first();  // number, of which the first
    std::size_t longest_length = 0;
    for (const Section* s = step.first(); s != nullptr; s = s->m_pnext) {
        if (tn::is_digit(s->sz_char[0])) {
            const std::size_t length = std::strlen(s->sz_char);
            if (step.reading().digits_read(s->sz_char) < length) {
                report(s, Finding::digits_not_read);
            }
            if (length > longest_length) {
                longest = s;
                longest_length = length;
            }
        } else if (is_telephone_number(step.rule()) && tn::begins_sentence_tag(s->sz_char)) {
            report(s, Finding::tag_in_telephone_number);
        }
        if (s == step.last()) break;
    }
    if (step.reading().is_cut()) report(longest, Finding::reading_cut);
}

void ReadingFindings::report(const Section* section, Finding finding) {
    const char* at = tn::SectionWindow::source(section).data();
    findings_.push_back({static_cast<std::size_t>(at - sentence_), finding});
}

}  // namespace kavi::host
