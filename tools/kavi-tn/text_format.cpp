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

// The number of characters of a field, if it is UTF-8.
std::size_t width_of(std::string_view field) {
    constexpr unsigned CONTINUATION = 0x80;
    constexpr unsigned CONTINUATION_MASK = 0xC0;
    std::size_t width = field.size();
    for (const char c : field) {
        width -= (static_cast<unsigned char>(c) & CONTINUATION_MASK) == CONTINUATION ? 1 : 0;
    }
    return width;
}

// Rows of fields in columns as wide as their widest field, two blanks between.
template <std::size_t Columns>
class Table {
  public:
    // `titles` of the columns are the first row; there may be none.
    explicit Table(std::initializer_list<std::string_view> titles = {}) {
        for (const std::string_view title : titles) add(title);
        n_titles_ = n_fields_;
    }

    // Removes all rows but the titles.
    void clear() {
        n_fields_ = n_titles_;
        composed_.clear();
        composed_end_ = 0;
    }

    // Adds a field whose text the caller keeps until the table is written.
    void add(std::string_view field) { add_field(field.data(), field.size()); }

    // Adds a field whose text is kept here: it is appended to field(), and end_field() ends it.
    TextBuffer& field() { return composed_; }
    void end_field() {
        add_field(nullptr, composed_.size() - composed_end_);
        composed_end_ = composed_.size();
    }

    // Appends all rows and an empty line. `are_bytes`: each byte of what add() was given is a
    // character. The fields are written over blanks.
    void append_to(std::string& out, bool are_bytes) {
        find_composed();
        const std::size_t more = are_bytes && is_ascii(composed_.text()) ? 0 : find_widths();
        const Widths widths = widest();
        const std::size_t row = std::accumulate(widths.begin(), widths.end(), 2 * Columns);
        const std::size_t begin = out.size();
        out.resize(begin + n_fields_ / Columns * row + more + 1, ' ');
        char* end = out.data() + begin;
        for (std::size_t i = 0; i < n_fields_; i += Columns) {
            end = write_row(&fields_[i], widths, end);
        }
        *end++ = '\n';
        out.resize(static_cast<std::size_t>(end - out.data()));
    }

  private:
    struct Field {
        const char* begin;  // null: the next part of composed_
        std::size_t size;
        std::size_t width;
    };
    using Widths = std::array<std::size_t, Columns>;

    void add_field(const char* begin, std::size_t size) {
        if (n_fields_ == fields_.size()) fields_.resize(2 * n_fields_ + Columns);
        fields_[n_fields_++] = {begin, size, size};
    }

    void find_composed() {
        const char* composed = composed_.text().data();
        for (std::size_t i = n_titles_; i < n_fields_; ++i) {
            Field& field = fields_[i];
            if (field.begin != nullptr) continue;
            field.begin = composed;
            composed += field.size;
        }
    }

    // Sets the widths of fields that need not be ASCII. Returns how many more bytes than characters
    // they have.
    std::size_t find_widths() {
        std::size_t more = 0;
        for (std::size_t i = n_titles_; i < n_fields_; ++i) {
            Field& field = fields_[i];
            field.width = width_of({field.begin, field.size});
            more += field.size - field.width;
        }
        return more;
    }

    // The width of each column.
    Widths widest() const {
        Widths widths = {};
        for (std::size_t i = 0; i < n_fields_;) {
            for (std::size_t& width : widths) width = std::max(width, fields_[i++].width);
        }
        return widths;
    }

    // Writes a row from `target` on, without blanks at its end, and returns the end.
    static char* write_row(const Field* fields, const Widths& widths, char* target) {
        char* end = target;  // of the last field that is not empty
        for (std::size_t column = 0; column < Columns; ++column) {
            const Field& field = fields[column];
            if (field.size > 0) {
                std::memcpy(target, field.begin, field.size);
                end = target + field.size;
            }
            target += field.size + widths[column] - field.width + 2;
        }
        *end++ = '\n';
        return end;
    }

    std::vector<Field> fields_;  // the first n_fields_
    std::size_t n_fields_ = 0;
    std::size_t n_titles_ = 0;
    TextBuffer composed_;           // the texts that are kept here, one after the other
    std::size_t composed_end_ = 0;  // of the last ended field
};

class SentenceFormat : public Format {
  public:
    void write(const Location& /*location*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
    }
};

class SpeakableFormat : public Format {
  public:
    void write(const Location& /*location*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.speakable) += '\n';
    }
};

// A line for each text, also for one without words, so that the lines correspond to those of the
// input.
class PlainFormat : public Format {
  public:
    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        plain_.read(sentence, location.text, location.text_begin);
        out += plain_.all();
    }
    void end_text(const Location& /*location*/, const std::vector<Diagnostic>& /*diagnostics*/,
                  std::string& out) override {
        out += '\n';
    }

  private:
    PlainForm plain_;
};

class WordFormat : public Format {
  public:
    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        table_.clear();
        const WordPlace* const places = sentence.places.words();
        for (int i = 0; i < sentence.n_records; ++i) {
            const UtteranceSyllable& record = sentence.records[i];
            if (i == 0 && !has_marks(record)) continue;
            const TextRange& source = places[i].source;
            table_.add(i == 0 ? "(head)" : word_of(record));
            table_.add(location.part(source));
            table_.add(pause_name(record.pause_type));
            if (record.n_punc > 0) append_punctuation(record, table_.field());
            table_.end_field();
            const char* const breaktime = record.cssml_tag.breaktime;
            table_.add(*breaktime == '\0' ? std::string_view() : breaktime);
            append_attributes(record.cssml_tag, table_.field());
            table_.end_field();
        }
        const std::string_view written = location.part(sentence.source);
        table_.append_to(out, is_ascii(sentence.speakable) && is_ascii(written));
    }

  private:
    Table<6> table_{{"word", "written", "pause", "marks", "break", "attributes"}};
};

class ExplainFormat : public Format {
  public:
    // Blanks between sections are left out, since they have no reading.
    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
        table_.clear();
        const auto on_run = [&](const ExplainedRun& run) {
            if (run.sections.size() == 1 && run.sections[0] == " ") return;
            table_.field().add("  [", run.sections[0], ']');
            for (std::size_t i = 1; i < run.sections.size(); ++i) {
                table_.field().add('[', run.sections[i], ']');
            }
            table_.end_field();
            const std::string_view first = run.sections[0];
            if (run.is_word && run.reading.size() == first.size() + 1) {  // it, and a blank
                table_.add(run.rule);
                table_.add(first);  // a part of the text, which lives longer than the reading
                return;
            }
            table_.field() << run.rule;
            table_.end_field();
            table_.field() << run.reading.substr(0, run.reading.find_last_not_of(' ') + 1);
            table_.end_field();
        };
        explain(sentence, location.text, on_run, location.text_begin);
        table_.append_to(out, true);
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
