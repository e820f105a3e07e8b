#include "number_findings.h"

#include <algorithm>
#include <cstring>

#include "common/ascii.h"
#include "tokenize/dispatcher.h"
#include "tokenize/section_queue.h"
#include "text_window.h"

namespace kavi::host {

namespace {

constexpr std::size_t DIGITS_READ = 12;  // of a cardinal number
constexpr std::size_t SECTION_MAX = WORD_MAX_LEN - 1;

// Every unread digit and every cut reading takes a number of at least so many digits.
constexpr std::size_t LONG_NUMBER = DIGITS_READ;

bool has_long_number(std::string_view text) {
    for (std::size_t i = LONG_NUMBER - 1; i < text.size(); i += LONG_NUMBER) {
        if (!tn::is_digit(text[i])) continue;
        std::size_t begin = i;
        std::size_t end = i;
        while (begin > 0 && tn::is_digit(text[begin - 1])) --begin;
        while (end < text.size() && tn::is_digit(text[end])) ++end;
        if (end - begin >= LONG_NUMBER) return true;
    }
    return false;
}

bool is_long_number(const Section* section) {
    return tn::is_digit(section->sz_char[0]) && std::strlen(section->sz_char) >= LONG_NUMBER;
}

// Finds the long numbers of a source one after the other, cut as sections are.
class LongNumbers {
  public:
    explicit LongNumbers(std::string_view source) : source_(source) {}

    std::size_t next() {
        while (at_ < source_.size()) {
            const std::size_t tag = tag_length(source_.substr(at_));
            std::size_t digits = 0;
            while (digits < SECTION_MAX && at_ + digits < source_.size() &&
                   tn::is_digit(source_[at_ + digits])) {
                ++digits;
            }
            at_ += std::max({tag, digits, std::size_t{1}});
            if (digits >= LONG_NUMBER) return at_ - digits;
        }
        return 0;  // the source writes it with a removed tag inside
    }

  private:
    std::string_view source_;
    std::size_t at_ = 0;
};

// Whether the rule reads the number digit by digit, to the last.
bool is_read_by_digits(ReadingRule rule, const Section* first, const Section* section) {
    switch (rule) {
        case ReadingRule::decimal: return section != first;
        case ReadingRule::bracket:
        case ReadingRule::plus_sign: return section != first->m_pnext;  // the country code
        default: return false;
    }
}

// A reading that was cut at its buffer does not end in a blank before the one that the dispatcher
// puts behind every reading; other readings that end in a number do.
bool is_cut(ReadingRule rule, const Section* last, std::string_view written) {
    switch (rule) {
        case ReadingRule::bracket:
        case ReadingRule::plus_sign:
        case ReadingRule::decimal: break;
        case ReadingRule::date:
        case ReadingRule::clock_time:
            if (!tn::is_digit(last->sz_char[0])) return false;
            break;
        default: return false;
    }
    return written.size() > 1 && written[written.size() - 2] != ' ';
}

}  // namespace

void find_unread_numbers(PostProTnEng& engine, mem_stack_handle arena, char* normalized,
                         std::string_view source, std::size_t offset,
                         std::vector<Diagnostic>& diagnostics) {
    if (!has_long_number(normalized)) return;
    tn::SectionQueue queue(arena);
    if (engine.text_to_queue(normalized, queue.head) != 0) return;
    char speakable[SZ_TEXT_MAX_LEN] = {};
    std::size_t length = 0;
    LongNumbers numbers(source);
    tn::BoundedText output(speakable, SZ_TEXT_MAX_LEN);
    SectionDispatcher dispatcher(engine, queue.head, output);
    while (Section* first = dispatcher.section()) {
        const ReadingRule rule = dispatcher.step();
        const Section* last = dispatcher.section();
        std::size_t first_number = std::string_view::npos;
        for (const Section* s = first; s != nullptr; s = s->m_pnext) {
            if (is_long_number(s)) {
                const std::size_t at = offset + numbers.next();
                first_number = std::min(first_number, at);
                const bool unread = std::strlen(s->sz_char) > DIGITS_READ;
                if (unread && !is_read_by_digits(rule, first, s)) {
                    diagnostics.push_back({at, Finding::digits_not_read});
                }
            }
            if (s == last) break;
        }
        const std::string_view written = speakable + length;
        length += written.size();
        if (last == nullptr || rule == ReadingRule::end) break;
        if (first_number != std::string_view::npos && is_cut(rule, last, written)) {
            diagnostics.push_back({first_number, Finding::reading_cut});
        }
        dispatcher.advance(first);
    }
}

}  // namespace kavi::host
