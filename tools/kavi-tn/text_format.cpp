// Plain text: a sentence a line, or a table for each.

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "format.h"
#include "names.h"
#include "tts_explain.h"

namespace kavi::tool {

namespace {

template <std::size_t Columns>
using Rows = std::vector<std::array<std::string, Columns>>;

// Columns as wide as their widest field, two blanks between, a blank line at the end.
template <std::size_t Columns>
void append_table(const Rows<Columns>& rows, std::string& out) {
    std::array<std::size_t, Columns> widths = {};
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < Columns; ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < Columns; ++i) {
            line += row[i] + std::string(widths[i] + 2 - row[i].size(), ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out += line + "\n";
    }
    out += "\n";
}

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

// The enumerator's name in words: "intonation phrase, forced".
std::string pause_in_words(PAUSE_type pause) {
    constexpr std::string_view PREFIX = "PAUSE_";
    constexpr std::string_view SUFFIX = "_FE";
    constexpr std::string_view FORCED = " force";
    std::string name = enumerator(pause);
    name = name.substr(PREFIX.size(), name.size() - PREFIX.size() - SUFFIX.size());
    for (char& c : name) c = c == '_' ? ' ' : static_cast<char>(c - 'A' + 'a');
    const std::size_t forced = name.rfind(FORCED);
    return forced == std::string::npos ? name : name.substr(0, forced) + ", forced";
}

class WordFormat : public Format {
  public:
    void write(const Place& /*place*/, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        Rows<5> rows = {{"word", "pause", "marks", "break", "attributes"}};
        for (int i = 0; i < sentence.n_records; ++i) {
            const UtteranceSyllable& record = sentence.records[i];
            if (i == 0 && !has_marks(record)) continue;
            rows.push_back({i == 0 ? "(head)" : record.syllable, pause_in_words(record.pause_type),
                            punctuation_list(record), record.cssml_tag.breaktime,
                            attribute_list(record.cssml_tag)});
        }
        append_table(rows, out);
    }
};

class ExplainFormat : public Format {
  public:
    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out.append(sentence.normalized) += '\n';
        // An abbreviation stands before the words that it was expanded to.
        std::vector<ExplainedRun> runs = explain_abbreviations(sentence, place.text);
        for (ExplainedRun& run : explain(sentence.normalized)) runs.push_back(std::move(run));
        std::stable_sort(runs.begin(), runs.end(),
                         [](const auto& a, const auto& b) { return a.at < b.at; });
        Rows<3> rows;
        append_rows(runs, rows);
        append_table(rows, out);
    }

  private:
    // Blanks between sections stay out: nothing is written for them.
    static void append_rows(const std::vector<ExplainedRun>& runs, Rows<3>& rows) {
        for (const ExplainedRun& run : runs) {
            if (run.sections.size() == 1 && run.sections[0] == " ") continue;
            std::string sections = "  ";
            for (const std::string& section : run.sections) sections += "[" + section + "]";
            rows.push_back({sections, run.rule, run.reading});
        }
    }
};

}  // namespace

std::unique_ptr<Format> make_text_format(Stage stage) {
    switch (stage) {
        case Stage::sentences: return std::make_unique<SentenceFormat>();
        case Stage::words: return std::make_unique<WordFormat>();
        case Stage::explain: return std::make_unique<ExplainFormat>();
        case Stage::speakable: break;
    }
    return std::make_unique<SpeakableFormat>();
}

std::unique_ptr<Format> make_format(const Options& options) {
    switch (options.format) {
        case FormatName::jsonl: return make_json_format(options.stage == Stage::explain);
        case FormatName::html: return make_html_format();
        case FormatName::text: break;
    }
    return make_text_format(options.stage);
}

}  // namespace kavi::tool
