// One self-contained page: what was said under what was written, with pauses, marks and markup.

#include <utf8.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>

#include "findings_report.h"
#include "format.h"
#include "names.h"
#include "tts_explain.h"

namespace kavi::tool {

namespace {

// Sentences that are not on the screen are not laid out, so a long page opens at once.
constexpr const char* PROLOGUE = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>What it will say</title>
<style>
:root { color-scheme: light dark; --ink: #1d2430; --page: #fbfaf7; --chip: #ffffff; --line: #d5d2ca;
  --soft: #6b6f78; --pause: #b4552d; --alarm: #a3202c; --emphasis: #d98e04; --prosody: #2f7fbf;
  --poem: #8a56b0; --effect: #2e9268; }
@media (prefers-color-scheme: dark) { :root { --ink: #e7e4dd; --page: #16181d; --chip: #22262e;
  --line: #3a3f4a; --soft: #9aa0ab; --pause: #f09a6c; --alarm: #ff8088; --emphasis: #f0b84a;
  --prosody: #6db5ec; --poem: #c79ae6; --effect: #6fd0a5; } }
body { margin: 0 auto; padding: 1rem; max-width: 60rem; color: var(--ink); background: var(--page);
  font: 1rem/1.4 system-ui, sans-serif; }
article { padding: .7rem 0; border-bottom: 1px solid var(--line); content-visibility: auto;
  contain-intrinsic-size: auto 6rem; }
h2 { margin: 0 0 .4rem; font-size: .75rem; font-weight: normal; color: var(--soft); }
.row { display: flex; flex-wrap: wrap; gap: .5rem .3rem; align-items: flex-start; }
.run { display: inline-flex; flex-direction: column; max-width: 100%; }
.written { min-height: 1.4em; overflow-wrap: anywhere; padding: 0 .2rem; font-size: .75rem; color: var(--soft); }
.said { display: flex; flex-wrap: wrap; gap: .2rem; }
.word { overflow-wrap: anywhere; padding: .1rem .4rem; border: 1px solid var(--line);
  border-radius: .4rem; background: var(--chip); }
.mark, .break { color: var(--pause); font-weight: bold; }
.pause { align-self: stretch; background: var(--pause); border-radius: 2px; }
.s2 { width: 2px; } .s3 { width: 4px; } .s4 { width: 6px; }
.band { display: block; height: 4px; margin-top: 1px; border-radius: 2px; }
.emphasis { background: var(--emphasis); } .poem { background: var(--poem); }
.pitch, .rate, .volume, .spectrum { background: var(--prosody); }
.quill_effect { background: var(--effect); }
.finding { margin: .4rem 0 0; color: var(--alarm); font-size: .85rem; }
</style>
</head>
<body>
<h1>What it will say</h1>
)";

constexpr const char* EPILOGUE = "</body>\n</html>\n";

std::string escape(std::string_view text) {
    std::string valid;
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid));
    std::string escaped;
    for (const char c : valid) {
        switch (c) {
            case '&': escaped += "&amp;"; break;
            case '<': escaped += "&lt;"; break;
            case '>': escaped += "&gt;"; break;
            case '"': escaped += "&quot;"; break;
            default: escaped += c;
        }
    }
    return escaped;
}

// How strong a pause is, from nothing to the longest.
int strength(PAUSE_type pause) {
    switch (pause) {
        case PAUSE_PHRASE_FE:
        case PAUSE_PHRASE_FORCE_FE: return 2;
        case PAUSE_INTONATION_PHRASE_FE:
        case PAUSE_INTONATION_PHRASE_FORCE_FE:
        case PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE: return 3;
        case PAUSE_SENTENCE_FE: return 4;
        default: return 0;
    }
}

std::string glyph(PUNC_type punc) {
    switch (punc) {
        case PUNC_DOU_FE: return ",";
        case PUNC_FEN_FE: return ";";
        case PUNC_JU_FE: return ".";
        case PUNC_WEN_FE: return "?";
        case PUNC_TAN_FE: return "!";
        case PUNC_MAO_FE: return ":";
        case PUNC_ZUOYIN_FE: return "&quot;";
        case PUNC_ZUOKUO_FE: return "(";
        case PUNC_YOUKUO_FE: return ")";
        default: return punctuation_name(punc);
    }
}

// The words that a reading is cut into: letters outside tags, as they are in the speakable text.
int count_words(const std::string& reading) {
    int words = 0;
    bool in_word = false;
    for (std::size_t i = 0; i < reading.size(); ++i) {
        const std::size_t tag_end = reading[i] == '<' ? reading.find('>', i) : std::string::npos;
        if (tag_end != std::string::npos) i = tag_end;
        const auto c = static_cast<unsigned char>(reading[i]);
        const bool is_letter = tag_end == std::string::npos && c < 128 && std::isalpha(c) != 0;
        if (is_letter && !in_word) ++words;
        in_word = is_letter;
    }
    return words;
}

// Marks, break time and pause after a word, or those of the head record.
void append_what_follows(const UtteranceSyllable& record, std::string& out) {
    for (int i = 0; i < record.n_punc; ++i) {
        out += "<span class=\"mark\" title=\"" + std::string(punctuation_name(record.punc_arr[i])) +
               "\">" + glyph(record.punc_arr[i]) + "</span>";
    }
    if (record.cssml_tag.breaktime[0] != '\0') {
        out += "<span class=\"break\">&#9208; " + escape(record.cssml_tag.breaktime) + "</span>";
    }
    if (const int bar = strength(record.pause_type)) {
        out += "<span class=\"pause s" + std::to_string(bar) + "\" title=\"" +
               enumerator(record.pause_type) + "\"></span>";
    }
}

void append_word(const UtteranceSyllable& record, std::string& out) {
    out += "<span class=\"word\">" + escape(record.syllable);
    for (const auto& [name, value] : attributes(record.cssml_tag)) {
        if (*value == '\0') continue;
        out += "<span class=\"band " + std::string(name) + "\" title=\"" + name + " " +
               escape(value) + "\"></span>";
    }
    out += "</span>";
    append_what_follows(record, out);
}

class HtmlFormat : public Format {
  public:
    std::string prologue() const override { return PROLOGUE; }
    std::string epilogue() const override { return EPILOGUE; }

    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& diagnostics, std::string& out) override {
        out += "<article><h2>" + escape(place.input) + ", line " + std::to_string(place.line) +
               "</h2><div class=\"row\">";
        append_what_follows(sentence.records[0], out);
        const Abbreviations abbreviations = explain_abbreviations(sentence, place.text);
        int next = 1;
        for (const ExplainedRun& run : explain(sentence.normalized)) {
            const int end = std::min(next + count_words(run.reading), sentence.n_records);
            append_run(run, abbreviations, sentence.records + next, end - next, out);
            next = end;
        }
        out += "</div>";
        for (const Diagnostic& d : diagnostics) {
            out += "<p class=\"finding\">Byte " + std::to_string(d.offset + 1) + ": " +
                   escape(describe(d, place.text)) + "</p>";
        }
        out += "</article>\n";
    }

  private:
    using Abbreviations = std::vector<ExplainedRun>;

    // What was written for a run: its sections, or the abbreviation it is the first word of;
    // nothing for the further words of one.
    static std::string written(const ExplainedRun& run, const Abbreviations& abbreviations) {
        for (const ExplainedRun& abbreviation : abbreviations) {
            if (run.at == abbreviation.at) return abbreviation.sections[0];
            if (run.at > abbreviation.at &&
                run.at < abbreviation.at + abbreviation.reading.size()) {
                return "";
            }
        }
        std::string text;
        for (const std::string& section : run.sections) text += section;
        return text;
    }

    static void append_run(const ExplainedRun& run, const Abbreviations& abbreviations,
                           const UtteranceSyllable* words, int n_words, std::string& out) {
        if (n_words == 0) return;
        out += "<span class=\"run\" title=\"" + std::string(run.rule) +
               "\"><span class=\"written\">" + escape(written(run, abbreviations)) +
               "</span><span class=\"said\">";
        for (int i = 0; i < n_words; ++i) append_word(words[i], out);
        out += "</span></span>";
    }
};

}  // namespace

std::unique_ptr<Format> make_html_format() {
    return std::make_unique<HtmlFormat>();
}

}  // namespace kavi::tool
