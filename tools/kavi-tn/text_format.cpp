// Plain text: a sentence a line, or a table for each.

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

#include "format.h"
#include "names.h"
#include "tts_explain.h"
#include "tts_plain.h"
#include "tts_text_buffer.h"

namespace kavi::tool {

namespace {

bool is_ascii(std::string_view text) {
    unsigned bits = 0;
    for (const char c : text) bits |= static_cast<unsigned char>(c);
    return bits <= '\x7f';
}

// How many characters a field has, if it is UTF-8.
std::size_t width_of(std::string_view field) {
    constexpr unsigned CONTINUATION = 0x80;
    constexpr unsigned CONTINUATION_MASK = 0xC0;
    std::size_t width = field.size();
    for (const char c : field) {
        width -= (static_cast<unsigned char>(c) & CONTINUATION_MASK) == CONTINUATION ? 1 : 0;
    }
    return width;
}

// Rows of fields in columns as wide as their widest field, two blanks between. The fields stand in
// one text, one after the other.
template <std::size_t Columns>
class Table {
  public:
    // `titles`: of the columns, above the rows; there may be none.
    explicit Table(std::initializer_list<std::string_view> titles = {}) {
        for (const std::string_view title : titles) add(title);
        n_titles_ = n_fields_;
    }

    // Leaves the titles.
    void clear() {
        n_fields_ = n_titles_;
        text_.cut_to(n_titles_ > 0 ? fields_[n_titles_ - 1].end : 0);
    }

    // The text to append the next field to.
    TextBuffer& field() { return text_; }

    // Ends the field, and after the last of a row the row.
    void end_field() {
        if (n_fields_ == fields_.size()) fields_.resize(2 * n_fields_ + Columns);
        fields_[n_fields_++].end = text_.text().size();
    }
    void add(std::string_view field) {
        text_ << field;
        end_field();
    }

    // All rows, and an empty line. They are written over blanks.
    void append_to(std::string& out) {
        const Widths widths = measure();
        const std::size_t row = std::accumulate(widths.begin(), widths.end(), 2 * Columns);
        const std::size_t begin = out.size();
        out.resize(begin + text_.text().size() + n_fields_ / Columns * row + 1, ' ');
        char* end = out.data() + begin;
        const char* field = text_.text().data();
        for (std::size_t i = 0; i < n_fields_; i += Columns) {
            end = write_row(&fields_[i], widths, field, end);
        }
        *end++ = '\n';
        out.resize(static_cast<std::size_t>(end - out.data()));
    }

  private:
    struct Field {
        std::size_t end;  // in the text
        std::size_t width;
    };
    using Widths = std::array<std::size_t, Columns>;

    // Sets the widths of the fields; those of the columns.
    Widths measure() {
        Widths widths = {};
        const std::string_view text = text_.text();
        const bool are_bytes = is_ascii(text);
        std::size_t begin = 0;
        for (std::size_t i = 0; i < n_fields_;) {
            for (std::size_t& widest : widths) {
                Field& field = fields_[i++];
                const std::size_t size = field.end - begin;
                field.width = are_bytes ? size : width_of(text.substr(begin, size));
                widest = std::max(widest, field.width);
                begin = field.end;
            }
        }
        return widths;
    }

    // Writes a row from `target` on, whose fields begin at `field`; where the next goes.
    char* write_row(const Field* fields, const Widths& widths, const char*& field,
                    char* target) const {
        char* end = target;  // after the last that is not empty
        for (std::size_t column = 0; column < Columns; ++column) {
            const auto size =
                static_cast<std::size_t>(text_.text().data() + fields[column].end - field);
            if (size > 0) {
                std::memcpy(target, field, size);
                end = target + size;
            }
            target += size + widths[column] - fields[column].width + 2;
            field += size;
        }
        *end++ = '\n';
        return end;
    }

    TextBuffer text_;
    std::vector<Field> fields_;  // with room for more
    std::size_t n_fields_ = 0;
    std::size_t n_titles_ = 0;
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
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        plain_.read(sentence, place.text, place.text_begin);
        out += plain_.all();
    }
    void end_text(const Place& /*place*/, const std::vector<Diagnostic>& /*diagnostics*/,
                  std::string& out) override {
        out += '\n';
    }

  private:
    PlainForm plain_;
};

class WordFormat : public Format {
  public:
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        table_.clear();
        for (int i = 0; i < sentence.n_records; ++i) {
            const UtteranceSyllable& record = sentence.records[i];
            if (i == 0 && !has_marks(record)) continue;
            const TextRange source = sentence.places.of_record(i).source;
            table_.add(i == 0 ? "(head)" : word_of(record));
            table_.add(place.part(source));
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
    Table<6> table_{{"word", "written", "pause", "marks", "break", "attributes"}};
};

class ExplainFormat : public Format {
  public:
    // Blanks between sections stay out: nothing is written for them.
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
        table_.clear();
        const auto on_run = [&](const ExplainedRun& run) {
            if (run.sections.size() == 1 && run.sections[0] == " ") return;
            table_.field() << "  ";
            for (const std::string_view section : run.sections) {
                table_.field() << '[' << section << ']';
            }
            table_.end_field();
            table_.add(run.rule);
            table_.add(run.reading.substr(0, run.reading.find_last_not_of(' ') + 1));
        };
        explain(sentence, place.text, on_run, place.text_begin);
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
