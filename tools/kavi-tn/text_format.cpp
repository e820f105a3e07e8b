// Plain text: a sentence a line, or a table for each.

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "format.h"
#include "names.h"
#include "tts_explain.h"
#include "tts_plain.h"

namespace kavi::tool {

namespace {

// How many characters a field has, if it is UTF-8.
std::size_t width_of(std::string_view field) {
    constexpr unsigned CONTINUATION = 0x80;
    constexpr unsigned CONTINUATION_MASK = 0xC0;
    std::size_t width = 0;
    for (const char c : field) {
        if ((static_cast<unsigned char>(c) & CONTINUATION_MASK) != CONTINUATION) ++width;
    }
    return width;
}

// Rows of fields in columns as wide as their widest field, two blanks between. The fields stand in
// one text, one after the other.
template <std::size_t Columns>
class Table {
  public:
    void clear() {
        text_.clear();
        ends_.clear();
        widths_ = {};
    }

    // The text to append the next field to.
    std::string& field() { return text_; }

    // Ends the field, and after the last of a row the row.
    void end_field() {
        std::size_t& width = widths_[ends_.size() % Columns];
        width = std::max(width, width_of(last()));
        ends_.push_back(text_.size());
    }
    void add(std::string_view field) {
        text_ += field;
        end_field();
    }

    // All rows, and an empty line.
    void append_to(std::string& out) const {
        std::size_t begin = 0;
        std::size_t blanks = 0;
        for (std::size_t i = 0; i < ends_.size(); ++i) {
            const std::size_t column = i % Columns;
            const std::string_view field(text_.data() + begin, ends_[i] - begin);
            if (column == 0) blanks = 0;
            if (!field.empty()) out.append(blanks, ' ').append(field);
            blanks = (field.empty() ? blanks : 0) + widths_[column] + 2 - width_of(field);
            if (column == Columns - 1) out += '\n';
            begin = ends_[i];
        }
        out += '\n';
    }

  private:
    std::string_view last() const {
        return std::string_view(text_).substr(ends_.empty() ? 0 : ends_.back());
    }

    std::string text_;
    std::vector<std::size_t> ends_;
    std::array<std::size_t, Columns> widths_ = {};
};

class SentenceFormat : public Format {
  public:
    void write(const Place& /*place*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
    }
};

class SpeakableFormat : public Format {
  public:
    void write(const Place& /*place*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.speakable) += '\n';
    }
};

// A line for each text, also for one without words, so that the lines can stand beside those of the
// input.
class PlainFormat : public Format {
  public:
    void write(const Place& /*place*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        const std::string plain = plain_text(sentence.records, sentence.n_records);
        if (plain.empty()) return;
        if (has_words_) out += ' ';
        out += plain;
        has_words_ = true;
    }
    void end_text(const Place& /*place*/, const std::vector<Diagnostic>& /*diagnostics*/,
                  std::string& out) override {
        out += '\n';
        has_words_ = false;
    }

  private:
    bool has_words_ = false;
};

class WordFormat : public Format {
  public:
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        table_.clear();
        for (const char* title : {"word", "written", "pause", "marks", "break", "attributes"}) {
            table_.add(title);
        }
        for (int i = 0; i < sentence.n_records; ++i) {
            const UtteranceSyllable& record = sentence.records[i];
            if (i == 0 && !has_marks(record)) continue;
            const TextRange source = sentence.places.of_record(i).source;
            table_.add(i == 0 ? "(head)" : record.syllable);
            table_.add(place.text.substr(source.offset, source.length));
            table_.add(pause_name(record.pause_type));
            append_punctuation(record, table_.field());
            table_.end_field();
            table_.add(record.cssml_tag.breaktime);
            append_attributes(record.cssml_tag, table_.field());
            table_.end_field();
        }
        table_.append_to(out);
    }

  private:
    Table<6> table_;
};

class ExplainFormat : public Format {
  public:
    // Blanks between sections stay out: nothing is written for them.
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
        table_.clear();
        for (const ExplainedRun& run : explain(sentence, place.text)) {
            if (run.sections.size() == 1 && run.sections[0] == " ") continue;
            table_.field() += "  ";
            for (const std::string& section : run.sections) {
                table_.field().append("[").append(section) += ']';
            }
            table_.end_field();
            table_.add(run.rule);
            const std::string_view reading = run.reading;
            table_.add(reading.substr(0, reading.find_last_not_of(' ') + 1));
        }
        table_.append_to(out);
    }

  private:
    Table<3> table_;
};

}  // namespace

std::unique_ptr<Format> make_text_format(Stage stage) {
    switch (stage) {
        case Stage::sentences: return std::make_unique<SentenceFormat>();
        case Stage::plain: return std::make_unique<PlainFormat>();
        case Stage::words: return std::make_unique<WordFormat>();
        case Stage::explain: return std::make_unique<ExplainFormat>();
        case Stage::speakable: break;
    }
    return std::make_unique<SpeakableFormat>();
}

std::unique_ptr<Format> make_format(const Options& options) {
    switch (options.format) {
        case FormatName::jsonl: return make_json_format(options.fields);
        case FormatName::html: return make_html_format();
        case FormatName::ssml: return make_ssml_format(options.marks);
        case FormatName::text: break;
    }
    return make_text_format(options.stage);
}

}  // namespace kavi::tool
