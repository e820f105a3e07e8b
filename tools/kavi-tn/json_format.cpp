// JSON Lines: an object a sentence. docs/kavi-tn.schema.json describes it.

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>

#include "finding_text.h"
#include "format.h"
#include "names.h"
#include "tts_explain.h"
#include "tts_plain.h"
#include "tts_text_buffer.h"

namespace kavi::tool {

namespace {

constexpr PlainCharacters PLAIN("\"\\");

// One object after the other. Text that is not UTF-8 has U+FFFD where it is not. A comma stands
// after each value, until its object or array ends.
class JsonLine {
  public:
    void begin() {
        line_.clear();
        line_ << '{';
    }
    void end(std::string& out) {
        close('}');
        out.append(line_.text().substr(0, line_.text().size() - 1)) += '\n';
    }

    void key(std::string_view name) { line_.add('"', name, "\":"); }
    void text(std::string_view value) { PLAIN.are_all(value) ? name(value) : escape(value); }
    void name(std::string_view plain) { line_.add('"', plain, "\","); }
    void number(std::size_t value) { line_.add(value, ','); }
    void null() { line_ << "null,"; }

    template <typename Write>
    void object(Write write) {
        line_ << '{';
        write();
        close('}');
    }
    template <typename Write>
    void array(Write write) {
        line_ << '[';
        write();
        close(']');
    }

    void field(std::string_view name, std::string_view value) {
        key(name);
        text(value);
    }
    void field(std::string_view name, std::size_t value) {
        line_.add('"', name, "\":", value, ',');
    }
    void range(const TextRange& range) {
        field("offset", range.offset);
        field("length", range.length);
    }

  private:
    void close(char bracket) {
        const std::string_view line = line_.text();
        if (line.back() == ',') line_.cut_to(line.size() - 1);
        line_.add(bracket, ',');
    }

    void escape(std::string_view text) {
        const std::string valid = valid_utf8(text);
        rapidjson::StringBuffer buffer;
        rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
        writer.String(valid.data(), static_cast<rapidjson::SizeType>(valid.size()));
        line_.add(std::string_view(buffer.GetString(), buffer.GetSize()), ',');
    }

    TextBuffer line_;
};

class JsonFormat : public Format {
  public:
    explicit JsonFormat(std::vector<Field> fields) : fields_(std::move(fields)) {
        const int n_fields = fields_.empty() ? static_cast<int>(Field::runs) : 0;
        for (int i = 0; i < n_fields; ++i) fields_.push_back(static_cast<Field>(i));
        needs_plain_ = has(Field::plain) || has(Field::before) || has(Field::words);
    }

    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& diagnostics, std::string& out) override {
        if (needs_plain_) plain_.read(sentence, place.text, place.text_begin);
        line_.begin();
        for (const Field field : fields_) {
            line_.key(name_of(field));
            write_field(field, place, sentence, diagnostics);
        }
        line_.end(out);
    }

    // What was found after the last sentence has an object of its own, without a sentence.
    void end_text(const Place& place, const std::vector<Diagnostic>& diagnostics,
                  std::string& out) override {
        if (diagnostics.empty() || !has(Field::findings)) return;
        line_.begin();
        if (has(Field::input)) line_.field(name_of(Field::input), place.input);
        if (has(Field::line)) line_.field(name_of(Field::line), place.line);
        line_.key(name_of(Field::findings));
        write_findings(place, diagnostics);
        line_.end(out);
    }

  private:
    bool has(Field field) const {
        return std::find(fields_.begin(), fields_.end(), field) != fields_.end();
    }

    void write_field(Field field, const Place& place, const HostSentence& sentence,
                     const std::vector<Diagnostic>& diagnostics) {
        const TextRange source = sentence.source;
        switch (field) {
            case Field::input: return line_.text(place.input);
            case Field::line: return line_.number(place.line);
            case Field::sentence: return line_.number(place.sentence);
            case Field::offset: return line_.number(source.offset);
            case Field::length: return line_.number(source.length);
            case Field::source: return line_.text(place.part(source));
            case Field::normalized: return line_.text(sentence.normalized);
            case Field::speakable: return line_.text(sentence.speakable);
            case Field::plain: return line_.text(plain_.all());
            case Field::before: return line_.text(plain_.before());
            case Field::words: return write_words(sentence);
            case Field::findings: return write_findings(place, diagnostics);
            case Field::runs: return write_runs(place, sentence);
        }
    }

    void write_words(const HostSentence& sentence) {
        const bool are_plain = PLAIN.are_all(sentence.speakable);  // which the words are pieces of
        line_.array([&] {
            for (int i = 0; i < sentence.n_records; ++i) {
                const UtteranceSyllable& record = sentence.records[i];
                if (i == 0 && !has_marks(record)) continue;
                write_word(sentence, i, are_plain);
            }
        });
    }

    // The head record, which holds what comes before the first word, has no word.
    void write_word(const HostSentence& sentence, int number, bool is_plain) {
        const UtteranceSyllable& record = sentence.records[number];
        line_.object([&] {
            line_.key("word");
            if (record.syllable == nullptr) {
                line_.null();
            } else {
                is_plain ? line_.name(word_of(record)) : line_.text(word_of(record));
                line_.field("after", plain_.after(static_cast<std::size_t>(number)));
            }
            line_.range(sentence.places.of_record(number).source);
            line_.key("pause");
            line_.name(pause_name(record.pause_type));
            if (record.n_punc > 0) {
                line_.key("marks");
                line_.array([&] {
                    for (int i = 0; i < record.n_punc; ++i) {
                        line_.name(punctuation_name(record.punc_arr[i]));
                    }
                });
            }
            const char* breaktime = record.cssml_tag.breaktime;
            if (*breaktime != '\0') line_.field("breaktime", breaktime);
            if (!has_attributes(record.cssml_tag)) return;
            for (const auto& [name, value] : attributes(record.cssml_tag)) {
                if (*value != '\0') line_.field(name, value);
            }
        });
    }

    void write_findings(const Place& place, const std::vector<Diagnostic>& diagnostics) {
        line_.array([&] {
            for (const Diagnostic& diagnostic : diagnostics) {
                line_.object([&] {
                    line_.field("code", code_of(diagnostic.finding));
                    line_.range({diagnostic.offset, diagnostic.length});
                    line_.field(
                        "message",
                        describe(diagnostic, place.part({diagnostic.offset, diagnostic.length})));
                });
            }
        });
    }

    void write_runs(const Place& place, const HostSentence& sentence) {
        line_.array([&] {
            const auto on_run = [&](const ExplainedRun& run) {
                line_.object([&] {
                    line_.range(run.source);
                    line_.field("rule", run.rule);
                    line_.key("sections");
                    line_.array([&] {
                        for (const std::string_view section : run.sections) line_.text(section);
                    });
                    line_.field("reading", run.reading);
                });
            };
            explain(sentence, place.text, on_run, place.text_begin);
        });
    }

    std::vector<Field> fields_;
    bool needs_plain_;
    PlainForm plain_;
    JsonLine line_;
};

}  // namespace

std::unique_ptr<Format> make_json_format(const std::vector<Field>& fields) {
    return std::make_unique<JsonFormat>(fields);
}

}  // namespace kavi::tool
