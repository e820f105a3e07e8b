// JSON Lines: an object a sentence. docs/kavi-tn.schema.json describes it.

#include <algorithm>

#include "finding_text.h"
#include "format.h"
#include "json_line.h"
#include "names.h"
#include "tts_everyday.h"
#include "tts_explain.h"
#include "tts_plain.h"

namespace kavi::tool {

namespace {

class JsonFormat : public Format {
  public:
    explicit JsonFormat(std::vector<Field> fields) : fields_(std::move(fields)) {
        const int n_fields = fields_.empty() ? static_cast<int>(Field::runs) : 0;
        for (int i = 0; i < n_fields; ++i) fields_.push_back(static_cast<Field>(i));
        needs_plain_ = has(Field::plain) || has(Field::before) || has(Field::words);
    }

    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& diagnostics, std::string& out) override {
        if (needs_plain_) plain_.read(sentence, location.text, location.text_begin);
        line_.begin();
        for (const Field field : fields_) {
            line_.key(name_of(field));
            write_field(field, location, sentence, diagnostics);
        }
        line_.end(out);
    }

    // What was found after the last sentence has an object of its own, without a sentence.
    void end_text(const Location& location, const std::vector<Diagnostic>& diagnostics,
                  std::string& out) override {
        if (diagnostics.empty() || !has(Field::findings)) return;
        line_.begin();
        if (has(Field::input)) line_.field(name_of(Field::input), location.input);
        if (has(Field::line)) line_.field(name_of(Field::line), location.line);
        line_.key(name_of(Field::findings));
        write_findings(location, diagnostics);
        line_.end(out);
    }

  private:
    bool has(Field field) const {
        return std::find(fields_.begin(), fields_.end(), field) != fields_.end();
    }

    void write_field(Field field, const Location& location, const HostSentence& sentence,
                     const std::vector<Diagnostic>& diagnostics) {
        const TextRange source = sentence.source;
        switch (field) {
            case Field::input: return line_.text(location.input);
            case Field::line: return line_.number(location.line);
            case Field::sentence: return line_.number(location.sentence);
            case Field::offset: return line_.number(source.offset);
            case Field::length: return line_.number(source.length);
            case Field::source: return line_.text(location.part(source));
            case Field::normalized: return line_.text(sentence.normalized);
            case Field::speakable: return line_.text(sentence.speakable);
            case Field::plain: return line_.text(plain_.all());
            case Field::before: return line_.text(plain_.before());
            case Field::words: return write_words(sentence);
            case Field::findings: return write_findings(location, diagnostics);
            case Field::runs: return write_runs(location, sentence);
            case Field::version: return line_.number(READINGS_VERSION);
        }
    }

    void write_words(const HostSentence& sentence) {
        const bool are_plain =
            JsonPlain::are_all(sentence.speakable);  // which the words are pieces of
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
        const TextRange& source = sentence.places.words()[number].source;
        const std::string_view pause = pause_name(record.pause_type);
        if (number == 0) {
            line_.begin_head(source, pause);
        } else {
            const std::string_view after = plain_.after(static_cast<std::size_t>(number));
            line_.begin_word(word_of(record), is_plain, after, source, pause);
        }
        if (record.n_punc > 0) write_marks(record);
        const char* breaktime = record.cssml_tag.breaktime;
        if (*breaktime != '\0') line_.field("breaktime", breaktime);
        if (has_attributes(record.cssml_tag)) {
            for (const auto& [name, value] : attributes(record.cssml_tag)) {
                if (*value != '\0') line_.field(name, value);
            }
        }
        line_.close('}');
    }

    void write_marks(const UtteranceSyllable& record) {
        line_.key("marks");
        line_.array([&] {
            for (int i = 0; i < record.n_punc; ++i) {
                line_.name(punctuation_name(record.punc_arr[i]));
            }
        });
    }

    void write_findings(const Location& location, const std::vector<Diagnostic>& diagnostics) {
        line_.array([&] {
            for (const Diagnostic& diagnostic : diagnostics) {
                line_.object([&] {
                    line_.field("code", code_of(diagnostic.finding));
                    line_.range({diagnostic.offset, diagnostic.length});
                    line_.field("message",
                                describe(diagnostic,
                                         location.part({diagnostic.offset, diagnostic.length})));
                });
            }
        });
    }

    void write_runs(const Location& location, const HostSentence& sentence) {
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
            explain(sentence, location.text, on_run, location.text_begin);
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
