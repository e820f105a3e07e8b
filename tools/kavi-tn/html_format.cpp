// One self-contained page: what is said under what was written, with marks, pauses, markup and the
// rules of the readings.
//
// A page has many words, so the elements are short: in a row, <u> is a piece as it was written,
// with what is said for it in it; <i> a word that is said, <b> a mark, a break or a pause, <small>
// a rule or the attributes that begin, <s> what is not spoken, <code> markup.

#include <algorithm>
#include <string>
#include <utility>

#include "finding_text.h"
#include "format.h"
#include "html_page.h"
#include "names.h"
#include "tts_explain.h"
#include "tts_text_buffer.h"

namespace kavi::tool {

namespace {

using Plain = PlainCharacters<'&', '<', '>', '"'>;

void append_escaped(std::string_view text, TextBuffer& out) {
    if (out.add_plain(text, Plain())) return;
    constexpr const char* DIGITS = "0123456789abcdef";
    for (const char c : valid_utf8(text)) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
            case '&': out << "&amp;"; break;
            case '<': out << "&lt;"; break;
            case '>': out << "&gt;"; break;
            case '"': out << "&quot;"; break;
            case '\t':
            case '\n':
            case '\r': out << ' '; break;
            default:
                if (byte < ' ' || byte == 0x7f) {
                    out << "\\x" << DIGITS[byte / 16] << DIGITS[byte % 16];
                } else {
                    out << c;
                }
        }
    }
}

void append_element(std::string_view name, std::string_view text, TextBuffer& out) {
    out.add('<', name, '>');
    append_escaped(text, out);
    out.add("</", name, '>');
}

// How a pause is shown; empty for one that every word has.
const char* strokes(PAUSE_type pause) {
    switch (pause) {
        case PAUSE_PHRASE_FE:
        case PAUSE_PHRASE_FORCE_FE: return "|";
        case PAUSE_INTONATION_PHRASE_FE:
        case PAUSE_INTONATION_PHRASE_FORCE_FE:
        case PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE: return "||";
        case PAUSE_SENTENCE_FE: return "|||";
        default: return "";
    }
}

bool is_blank(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
}

// The name in the "<punc=" tag that a reading begins with; empty when there is none.
std::string_view mark_in(std::string_view reading) {
    constexpr std::string_view PREFIX = "<punc=";
    if (reading.substr(0, PREFIX.size()) != PREFIX) return {};
    return reading.substr(PREFIX.size(), reading.find('>') - PREFIX.size());
}

// One sentence, from its first byte to its last.
class SentenceWriter {
  public:
    SentenceWriter(const Location& location, const HostSentence& sentence,
                   const std::vector<Diagnostic>& diagnostics, TextBuffer& out)
        : location_(location),
          sentence_(sentence),
          places_(sentence.places.words()),
          findings_(diagnostics),
          finding_(diagnostics.begin()),
          out_(out),
          at_(sentence.source.offset) {}

    void write_row() {
        out_ << "<div>";
        write_head(sentence_.records[0]);
        explain(sentence_, location_.text, [&](const ExplainedRun& run) {
            write_left_out(run.source.offset);
            write_run(run);
            at_ = std::max(at_, run.source.offset + run.source.length);
            if (finding_ != findings_.end()) write_numbers_of_findings(at_);
        });
        write_left_out(sentence_.source.offset + sentence_.source.length);
        write_numbers_of_findings(location_.text.size());
        out_ << "</div>";
    }

  private:
    std::string_view written(const TextRange& source) const {
        return location_.text.substr(source.offset, source.length);
    }

    // The text before the first word.
    void write_head(const UtteranceSyllable& head) {
        if (*head.cssml_tag.breaktime == '\0' && *strokes(head.pause_type) == '\0') return;
        out_ << "<u><i>";
        write_after_word(head);
        out_ << "</i></u>";
    }

    // What the sentence was cut without.
    void write_left_out(std::size_t end) {
        if (at_ >= end) return;
        write_silent(location_.text.substr(at_, end - at_));
        at_ = end;
    }

    void write_silent(std::string_view text) {
        if (is_blank(text)) {
            out_ << ' ';
        } else {
            append_element("s", text, out_);
        }
    }

    void write_run(const ExplainedRun& run) {
        const std::string_view text = written(run.source);
        const int end = words_before(run.reading_at + run.reading.size());
        if (next_ < end) {
            begin_piece(text);
            for (; next_ < end; ++next_) write_word(sentence_.records[next_]);
            if (!run.is_word) append_element("small", run.rule, out_);
            out_ << "</u>";
        } else if (const std::string_view mark = mark_in(run.reading); !mark.empty()) {
            begin_piece(text);
            append_element("b", glyph(mark), out_);
            out_ << "</u>";
        } else if (!text.empty() && text[0] == '<' && !is_blank(run.reading)) {
            append_element("code", text, out_);
        } else {
            write_silent(text);
        }
    }

    void begin_piece(std::string_view text) {
        out_ << "<u>";
        append_escaped(text, out_);
        out_ << "<br>";
    }

    // The number of the first word at that offset of the speakable text, or after it.
    int words_before(std::size_t speakable_end) const {
        int end = next_;
        while (end < sentence_.n_records && places_[end].at < speakable_end) ++end;
        return end;
    }

    // As punctuation writes it, or else its name.
    static std::string_view glyph(std::string_view mark) {
        for (const auto& [name, text] : MARK_GLYPHS) {
            if (mark == name) return text;
        }
        return mark;
    }

    void write_word(const UtteranceSyllable& record) {
        const bool has_any = has_attributes(record.cssml_tag);
        has_any ? out_ << "<i class=m>" : out_ << "<i>";
        append_escaped(word_of(record), out_);
        write_after_word(record);
        out_ << "</i>";
        if (has_any) write_attributes(record.cssml_tag);
        is_in_span_ = has_any;
    }

    // Under the first of the words that have them.
    void write_attributes(const CssmlTag& tag) {
        std::swap(attributes_, attributes_before_);
        attributes_.clear();
        append_attributes(tag, attributes_);
        if (!is_in_span_ || attributes_.text() != attributes_before_.text()) {
            append_element("small", attributes_.text(), out_);
        }
    }

    void write_after_word(const UtteranceSyllable& record) {
        const char* breaktime = record.cssml_tag.breaktime;
        if (*breaktime != '\0') append_element("b", std::string("break ") + breaktime, out_);
        const char* pause = strokes(record.pause_type);
        if (*pause != '\0') append_element("b", pause, out_);
    }

    // Numbers that lead to the findings before `end`.
    void write_numbers_of_findings(std::size_t end) {
        for (; finding_ != findings_.end() && finding_->offset < end; ++finding_) {
            const auto number = static_cast<std::size_t>(finding_ - findings_.begin()) + 1;
            out_.add("<sup><a href=#", anchor(location_), '-', number, '>', number, "</a></sup>");
        }
    }

    const Location& location_;
    const HostSentence& sentence_;
    const WordPlace* places_;
    const std::vector<Diagnostic>& findings_;
    std::vector<Diagnostic>::const_iterator finding_;  // the next
    TextBuffer& out_;
    std::size_t at_;           // the next byte of the text
    int next_ = 1;             // the next record
    bool is_in_span_ = false;  // the last word
    TextBuffer attributes_;    // of the last word that has any
    TextBuffer attributes_before_;
};

class HtmlFormat : public Format {
  public:
    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& diagnostics, std::string& out) override {
        text_.clear();
        begin_article(location);
        write_source(location, sentence.source, diagnostics);
        SentenceWriter(location, sentence, diagnostics, text_).write_row();
        end_article(location, diagnostics);
        out += text_.text();
    }

    void end_text(const Location& location, const std::vector<Diagnostic>& diagnostics,
                  std::string& out) override {
        Location after = location;
        ++after.sentence;
        text_.clear();
        if (diagnostics.empty()) {
            begin_input(after);
        } else {
            begin_article(after);
            end_article(after, diagnostics);
        }
        out += text_.text();
    }

  private:
    // The name of an input, before its first sentence or in the place of that.
    void begin_input(const Location& location) {
        if (location.line == 1 && location.sentence == 1)
            append_element("h2", location.input, text_);
    }

    void begin_article(const Location& location) {
        begin_input(location);
        const std::string name = anchor(location);
        text_ << "<article id=" << name << "><a href=#" << name << ">line " << location.line
              << "</a>";
    }

    // As it was written, with what was found underlined.
    void write_source(const Location& location, const TextRange& source,
                      const std::vector<Diagnostic>& diagnostics) {
        text_ << "<p>";
        const std::size_t end = source.offset + source.length;
        std::size_t at = source.offset;
        for (const Diagnostic& found : diagnostics) {
            if (found.offset < at || found.offset >= end) continue;
            append_escaped(location.text.substr(at, found.offset - at), text_);
            at = std::min(end, found.offset + length_to_underline(location.text, found));
            append_element("mark", location.text.substr(found.offset, at - found.offset), text_);
        }
        append_escaped(location.text.substr(at, end - at), text_);
        text_ << "</p>";
    }

    // A tag is underlined up to its ">".
    static std::size_t length_to_underline(std::string_view text, const Diagnostic& found) {
        if (text[found.offset] != '<') return found.length;
        constexpr std::size_t LONGEST = 256;  // so that each of many is not searched for to the end
        const std::size_t close = text.substr(found.offset, LONGEST).find('>');
        return close != std::string_view::npos ? close + 1 : 1;
    }

    void end_article(const Location& location, const std::vector<Diagnostic>& diagnostics) {
        if (!diagnostics.empty()) text_ << "<ol>";
        std::size_t number = 0;
        for (const Diagnostic& d : diagnostics) {
            ++number;
            text_ << "<li id=" << anchor(location) << '-' << number << ">byte " << d.offset << ": ";
            append_escaped(describe(d, location.part({d.offset, d.length})), text_);
        }
        text_ << (diagnostics.empty() ? "</article>\n" : "</ol></article>\n");
    }

    TextBuffer text_;  // of one sentence
};

}  // namespace

std::unique_ptr<Format> make_html_format() {
    return std::make_unique<HtmlFormat>();
}

}  // namespace kavi::tool
