#include "tts_ssml.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <utility>

#include "tts_names.h"

namespace kavi {

const char* const SSML_BEGIN =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<speak version=\"1.1\" xmlns=\"http://www.w3.org/2001/10/synthesis\" xml:lang=\"en\">\n";
const char* const SSML_END = "</speak>\n";

namespace {

// The values that the standard names.
constexpr std::string_view RATES[] = {"x-slow", "slow", "medium", "fast", "x-fast", "default"};
constexpr std::string_view PITCHES[] = {"x-low", "low", "medium", "high", "x-high", "default"};
constexpr std::string_view VOLUMES[] = {"silent", "x-soft", "soft",   "medium",
                                        "loud",   "x-loud", "default"};
constexpr std::string_view LEVELS[] = {"strong", "moderate", "none", "reduced"};

template <std::size_t N>
bool is_one_of(std::string_view value, const std::string_view (&names)[N]) {
    return std::find(std::begin(names), std::end(names), value) != std::end(names);
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// Digits, with at most one point between them.
bool is_number(std::string_view value) {
    if (value.empty() || !is_digit(value.front()) || !is_digit(value.back())) return false;
    return std::count(value.begin(), value.end(), '.') <= 1 &&
           std::all_of(value.begin(), value.end(), [](char c) { return is_digit(c) || c == '.'; });
}

bool ends_with(std::string_view value, std::string_view end) {
    return value.size() > end.size() && value.substr(value.size() - end.size()) == end;
}

// A number with a unit, with an optional or required sign before it.
enum class Sign { none, may, must };
bool is_quantity(std::string_view value, std::string_view unit, Sign sign) {
    if (!ends_with(value, unit)) return false;
    value.remove_suffix(unit.size());
    const bool has_sign = value.front() == '+' || value.front() == '-';
    if (has_sign ? sign == Sign::none : sign == Sign::must) return false;
    return is_number(value.substr(has_sign ? 1 : 0));
}

// A value of the standard, in two pieces; both empty when it has none.
struct Value {
    std::string_view number;
    std::string_view unit;
};

Value known(std::string_view value, bool is_known) {
    return {is_known ? value : std::string_view(), {}};
}

// Each converts a value of the markup language to one of the standard. A whole number alone is a
// factor of the default rate.
Value rate_of(std::string_view value) {
    const bool is_factor =
        is_number(value) && value.size() <= 4 && value.find('.') == std::string_view::npos;
    if (is_factor) return {value, "00%"};
    return known(value, is_one_of(value, RATES) || is_quantity(value, "%", Sign::none));
}

Value pitch_of(std::string_view value) {
    return known(value, is_one_of(value, PITCHES) || is_quantity(value, "%", Sign::must) ||
                            is_quantity(value, "st", Sign::must) ||
                            is_quantity(value, "Hz", Sign::may));
}

Value volume_of(std::string_view value) {
    return known(value, is_one_of(value, VOLUMES) || is_quantity(value, "dB", Sign::must));
}

// Any other value means emphasis: "moderate", the default level of the standard.
std::string_view level_of(std::string_view value) {
    return value.empty() || is_one_of(value, LEVELS) ? value : LEVELS[1];
}

// Milliseconds, up to a day.
bool is_time(std::string_view value) {
    constexpr std::size_t LONGEST = 8;
    return value.size() <= LONGEST && is_number(value) && value.find('.') == std::string_view::npos;
}

bool may_have_break(const UtteranceSyllable& record) {
    return record.cssml_tag.breaktime[0] != '\0' ||
           record.pause_type == PAUSE_INTONATION_PHRASE_FORCE_FE;
}

// Whether two words have the same elements around them.
bool have_same_attributes(const CssmlTag& a, const CssmlTag& b) {
    constexpr std::size_t BEGIN = offsetof(CssmlTag, emphasis);
    constexpr std::size_t END = offsetof(CssmlTag, ssml_w);
    const auto begin = [](const CssmlTag& tag) {
        return reinterpret_cast<const char*>(&tag) + BEGIN;
    };
    return std::memcmp(begin(a), begin(b), END - BEGIN) == 0;
}

using Plain = PlainCharacters<'&', '<'>;

// A word with a part of an unclosed tag has other characters than letters, but no ">", which would
// end the tag. Control characters, which XML does not allow, and bytes outside ASCII become U+FFFD.
void append_escaped(std::string_view word, TextBuffer& out) {
    if (out.add_plain(word, Plain())) return;
    for (const char c : word) {
        switch (c) {
            case '&': out.add("&amp;"); break;
            case '<': out.add("&lt;"); break;
            default: Plain::have(c) ? out.add(c) : out.add("\xef\xbf\xbd");
        }
    }
}

}  // namespace

// The plain form is copied in long pieces, up to the next element.
void SsmlForm::read(const HostSentence& sentence, std::string_view text, std::size_t text_begin) {
    plain_.read(sentence, text, text_begin);
    is_plain_ = Plain::are_all(plain_.all());
    copied_ = std::min(plain_.before().find_first_not_of(' '), plain_.before().size());
    next_word_ = 1;
    n_records_ = static_cast<std::size_t>(sentence.n_records);
    all_.clear();
    all_.add("<s>");
    bool has_break = false;
    bool has_any = false;  // the last word has attributes
    for (std::size_t i = 0; i < n_records_; ++i) {
        const UtteranceSyllable& record = sentence.records[i];
        if (may_have_break(record)) {
            copy_to(end_of_closing_marks(i));
            has_break |= write_break(record);
        }
        if (i + 1 == n_records_) continue;
        const CssmlTag& next = sentence.records[i + 1].cssml_tag;
        const bool had_any = std::exchange(has_any, has_attributes(next));
        if ((has_any || had_any) && !have_same_attributes(record.cssml_tag, next)) {
            copy_to(end_of_closing_marks(i));
            enter_elements(next, begin_of_opening_marks(i));
        }
        if (has_marks_) {
            const TextRange source = sentence.places.words()[i + 1].source;
            copy_to(begin_of_opening_marks(i));
            all_.add("<mark name=\"", source.offset, '-', source.length, "\"/>");
        }
    }
    if (n_records_ > 1) copy_to(plain_.all().size());
    if (has_any) enter_elements({}, copied_);
    all_.add("</s>\n");
    if (n_records_ <= 1 && !has_break) all_.clear();
}

// The offset in the plain form after the marks that belong to a record: up to the first blank after
// it, or to the end for the last record. Marks directly before the next word belong to that word,
// and blanks between the two to neither. The text before the first word has no closing marks.
std::size_t SsmlForm::end_of_closing_marks(std::size_t record) const {
    const std::string_view after = plain_.after(record);
    const std::size_t begin = place_of(after);
    if (record == 0) return copied_;
    if (record + 1 == n_records_) return begin + after.size();
    return begin + std::min(after.find(' '), after.size());
}

// The offset in the plain form of the marks that belong to the word after a record.
std::size_t SsmlForm::begin_of_opening_marks(std::size_t record) const {
    const std::string_view after = plain_.after(record);
    const std::size_t after_blanks = place_of(after) + after.rfind(' ') + 1;
    return after.find(' ') == std::string_view::npos ? end_of_closing_marks(record)
                                                     : std::max(after_blanks, copied_);
}

std::size_t SsmlForm::place_of(std::string_view part) const {
    return static_cast<std::size_t>(part.data() - plain_.all().data());
}

// Copies the plain form up to an offset that is in no word. Words are escaped.
void SsmlForm::copy_to(std::size_t end) {
    const std::string_view plain = plain_.all();
    if (is_plain_) {
        all_.add(plain.substr(copied_, end - copied_));
        copied_ = end;
        return;
    }
    while (copied_ < end) {
        const std::string_view before = plain_.after(next_word_ - 1);
        const std::size_t word = place_of(before) + before.size();
        const std::size_t gap_end = std::min(word, end);
        all_.add(plain.substr(copied_, gap_end - copied_));
        copied_ = gap_end;
        if (gap_end == end) break;
        const std::size_t word_end = place_of(plain_.after(next_word_++));
        append_escaped(plain.substr(word, word_end - word), all_);
        copied_ = word_end;
    }
}

// Closes and opens elements for the words from the offset `begin` of the plain form on, which have
// the attributes of `tag`. Elements that are the same stay open.
void SsmlForm::enter_elements(const CssmlTag& tag, std::size_t begin) {
    next_.prosody.clear();
    const auto add = [&](const char* name, const char* value, const Value& known) {
        if (*value == '\0') return;
        if (known.number.empty()) {
            lost_.insert(std::string(name) + "=" + value);
        } else {
            next_.prosody.add(' ', name, "=\"", known.number, known.unit, '"');
        }
    };
    add("rate", tag.pro_rate, rate_of(tag.pro_rate));
    add("pitch", tag.pro_pitch, pitch_of(tag.pro_pitch));
    add("volume", tag.pro_volume, volume_of(tag.pro_volume));
    add("spectrum", tag.pro_spectrum, {});
    add("poem", tag.poem, {});
    add("quill_effect", tag.quill_effect, {});
    next_.level = level_of(tag.emphasis);

    const std::string_view prosody = next_.prosody.text();
    const bool is_other_prosody = prosody != open_.prosody.text();
    const bool is_other_level = is_other_prosody || next_.level != open_.level;
    if (!open_.level.empty() && is_other_level) all_.add("</emphasis>");
    if (open_.prosody.size() > 0 && is_other_prosody) all_.add("</prosody>");
    copy_to(begin);
    if (!prosody.empty() && is_other_prosody) all_.add("<prosody", prosody, '>');
    if (!next_.level.empty() && is_other_level) {
        all_.add("<emphasis level=\"", next_.level, "\">");
    }
    std::swap(open_, next_);
}

// Writes the break after a record, if there is one. Returns whether there is.
bool SsmlForm::write_break(const UtteranceSyllable& record) {
    if (record.cssml_tag.breaktime[0] != '\0') {
        const std::string_view value = record.cssml_tag.breaktime;
        if (is_time(value)) {
            all_.add("<break time=\"", value, "ms\"/>");
            return true;
        }
        lost_.insert("breaktime=" + std::string(value));
    }
    const bool is_forced = record.pause_type == PAUSE_INTONATION_PHRASE_FORCE_FE;
    if (is_forced) all_.add("<break strength=\"medium\"/>");
    return is_forced;
}

}  // namespace kavi
