#include "tts_ssml.h"

#include <algorithm>
#include <iterator>

#include "tts_plain.h"

namespace kavi {

const char* const SSML_BEGIN =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<speak version=\"1.1\" xmlns=\"http://www.w3.org/2001/10/synthesis\" xml:lang=\"en\">\n";
const char* const SSML_END = "</speak>\n";

namespace {

// What the standard knows by name.
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

// Digits, with a point among them at most.
bool is_number(std::string_view value) {
    if (value.empty() || !is_digit(value.front()) || !is_digit(value.back())) return false;
    return std::count(value.begin(), value.end(), '.') <= 1 &&
           std::all_of(value.begin(), value.end(), [](char c) { return is_digit(c) || c == '.'; });
}

bool ends_with(std::string_view value, std::string_view end) {
    return value.size() > end.size() && value.substr(value.size() - end.size()) == end;
}

// A number with a unit, and a sign before it where one may stand or must.
enum class Sign { none, may, must };
bool is_quantity(std::string_view value, std::string_view unit, Sign sign) {
    if (!ends_with(value, unit)) return false;
    value.remove_suffix(unit.size());
    const bool has_sign = value.front() == '+' || value.front() == '-';
    if (has_sign ? sign == Sign::none : sign == Sign::must) return false;
    return is_number(value.substr(has_sign ? 1 : 0));
}

// Each gives the standard's value for one of ours, or nothing. A number by itself is so many times
// the usual rate.
std::string rate_of(std::string_view value) {
    if (is_one_of(value, RATES) || is_quantity(value, "%", Sign::none)) return std::string(value);
    if (!is_number(value) || value.size() > 4 || value.find('.') != std::string_view::npos)
        return {};
    return std::string(value) + "00%";
}

std::string pitch_of(std::string_view value) {
    const bool is_known = is_one_of(value, PITCHES) || is_quantity(value, "%", Sign::must) ||
                          is_quantity(value, "st", Sign::must) ||
                          is_quantity(value, "Hz", Sign::may);
    return std::string(is_known ? value : std::string_view());
}

std::string volume_of(std::string_view value) {
    const bool is_known = is_one_of(value, VOLUMES) || is_quantity(value, "dB", Sign::must);
    return std::string(is_known ? value : std::string_view());
}

// Any other value means that there is emphasis: the standard's usual level.
std::string level_of(std::string_view value) {
    if (value.empty()) return {};
    return std::string(is_one_of(value, LEVELS) ? value : LEVELS[1]);
}

// Up to a day.
std::string time_of(std::string_view value) {
    constexpr std::size_t LONGEST = 8;
    const bool is_time =
        value.size() <= LONGEST && is_number(value) && value.find('.') == std::string_view::npos;
    return is_time ? std::string(value) + "ms" : "";
}

// A word that an unclosed tag got into has more than letters. What XML does not have, or is outside
// ASCII, is U+FFFD.
void append_escaped(std::string_view word, std::string& out) {
    constexpr std::string_view SPECIAL = "&<>";
    constexpr const char* ESCAPED[] = {"&amp;", "&lt;", "&gt;"};
    for (const char c : word) {
        const std::size_t special = SPECIAL.find(c);
        const bool is_printable = static_cast<unsigned char>(c - ' ') <= '~' - ' ';
        if (special != std::string_view::npos) {
            out += ESCAPED[special];
        } else if (is_printable) {
            out += c;
        } else {
            out += "\xef\xbf\xbd";
        }
    }
}

class SentenceWriter {
  public:
    SentenceWriter(const HostSentence& sentence, std::string_view text, std::size_t text_begin,
                   bool has_marks, std::set<std::string>& lost)
        : sentence_(sentence), has_marks_(has_marks), lost_(lost) {
        plain_.read(sentence, text, text_begin);
    }

    std::string write() {
        for (int i = 0; i < sentence_.n_records; ++i) {
            if (i > 0) write_word(i);
            out_ += closing_marks(i);
            write_break(sentence_.records[i]);
        }
        close_others("", "");
        const bool is_silent = sentence_.n_records <= 1 && !has_break_;
        return is_silent ? "" : "<s>" + out_ + "</s>\n";
    }

  private:
    // Of what follows a record: up to the first blank, but that before the first word is not of it.
    // The rest is kept for the next word: blanks, and what stands directly before it.
    std::string_view closing_marks(int i) {
        const std::string_view after = plain_.after(static_cast<std::size_t>(i));
        if (i > 0 && i == sentence_.n_records - 1) return after;
        const std::size_t begin = std::min(after.find_first_not_of(' '), after.size());
        const std::size_t end = i > 0 ? std::min(after.find(' '), after.size()) : begin;
        const std::size_t blanks_end = std::max(end, after.rfind(' ') + 1);
        between_ = after.substr(end, blanks_end - end);
        opening_ = after.substr(blanks_end);
        return i > 0 ? after.substr(0, end) : std::string_view();
    }

    void write_word(int i) {
        const UtteranceSyllable& record = sentence_.records[i];
        const CssmlTag& tag = record.cssml_tag;
        std::string prosody;
        add_attribute("rate", tag.pro_rate, rate_of(tag.pro_rate), prosody);
        add_attribute("pitch", tag.pro_pitch, pitch_of(tag.pro_pitch), prosody);
        add_attribute("volume", tag.pro_volume, volume_of(tag.pro_volume), prosody);
        std::string ignored;
        add_attribute("spectrum", tag.pro_spectrum, "", ignored);
        add_attribute("poem", tag.poem, "", ignored);
        add_attribute("quill_effect", tag.quill_effect, "", ignored);
        open(prosody, level_of(tag.emphasis));
        if (has_marks_) {
            const TextRange source = sentence_.places.of_record(i).source;
            out_ += "<mark name=\"" + std::to_string(source.offset) + "-" +
                    std::to_string(source.length) + "\"/>";
        }
        out_ += opening_;
        append_escaped(record.syllable, out_);
    }

    // Nothing for a value that is not set; one that the standard does not know is lost.
    void add_attribute(const char* name, const char* value, const std::string& known,
                       std::string& attributes) {
        if (*value == '\0') return;
        if (known.empty()) {
            lost_.insert(std::string(name) + "=" + value);
        } else {
            attributes.append(" ").append(name).append("=\"").append(known).append("\"");
        }
    }

    // Before the next word, with the elements that it stands in; those that go on stay open.
    void open(const std::string& prosody, const std::string& level) {
        const bool is_other = prosody != prosody_;
        close_others(prosody, level);
        out_ += between_;
        if (!prosody.empty() && is_other) out_ += "<prosody" + prosody + ">";
        if (!level.empty() && (is_other || level != level_)) {
            out_ += "<emphasis level=\"" + level + "\">";
        }
        prosody_ = prosody;
        level_ = level;
    }

    void close_others(const std::string& prosody, const std::string& level) {
        const bool is_other = prosody != prosody_;
        if (!level_.empty() && (is_other || level != level_)) out_ += "</emphasis>";
        if (!prosody_.empty() && is_other) out_ += "</prosody>";
    }

    void write_break(const UtteranceSyllable& record) {
        const char* value = record.cssml_tag.breaktime;
        const std::string time = time_of(value);
        if (*value != '\0' && time.empty()) lost_.insert(std::string("breaktime=") + value);
        const bool is_forced = record.pause_type == PAUSE_INTONATION_PHRASE_FORCE_FE;
        if (!time.empty()) {
            out_ += "<break time=\"" + time + "\"/>";
        } else if (is_forced) {
            out_ += "<break strength=\"medium\"/>";
        }
        has_break_ = has_break_ || !time.empty() || is_forced;
    }

    const HostSentence& sentence_;
    bool has_marks_;
    std::set<std::string>& lost_;
    std::string out_;
    PlainForm plain_;
    std::string_view between_;  // before the next word, outside of its elements,
    std::string_view opening_;  // and inside
    std::string prosody_;       // the attributes of the element that is open; none: no element
    std::string level_;         // likewise, inside it
    bool has_break_ = false;
};

}  // namespace

std::string ssml(const HostSentence& sentence, std::string_view text, bool has_marks,
                 std::set<std::string>& lost, std::size_t text_begin) {
    return SentenceWriter(sentence, text, text_begin, has_marks, lost).write();
}

}  // namespace kavi
