// JSON Lines: an object a sentence.

#include <nlohmann/json.hpp>

#include "findings_report.h"
#include "format.h"
#include "names.h"
#include "tts_explain.h"

namespace kavi::tool {

namespace {

using Json = nlohmann::ordered_json;

Json word(const UtteranceSyllable& record) {
    Json json;
    json["word"] = record.syllable != nullptr ? Json(record.syllable) : Json(nullptr);
    json["pause"] = enumerator(record.pause_type);
    json["punctuation"] = Json::array();
    for (int i = 0; i < record.n_punc; ++i) {
        json["punctuation"].push_back(punctuation_name(record.punc_arr[i]));
    }
    if (record.cssml_tag.breaktime[0] != '\0') json["breaktime"] = record.cssml_tag.breaktime;
    for (const auto& [name, value] : attributes(record.cssml_tag)) {
        if (*value != '\0') json[name] = value;
    }
    return json;
}

Json explanation(const std::vector<ExplainedRun>& runs) {
    Json json = Json::array();
    for (const ExplainedRun& run : runs) {
        json.push_back({{"sections", run.sections}, {"rule", run.rule}, {"reading", run.reading}});
    }
    return json;
}

class JsonFormat : public Format {
  public:
    explicit JsonFormat(bool explain) : explain_(explain) {}

    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& diagnostics, std::string& out) override {
        const std::string_view source =
            place.text.substr(sentence.source.offset, sentence.source.length);
        Json json;
        json["input"] = place.input;
        json["line"] = place.line;
        json["sentence"] = place.sentence;
        json["source"] = source;
        json["offset"] = sentence.source.offset;
        json["length"] = sentence.source.length;
        json["normalized"] = sentence.normalized;
        json["speakable"] = sentence.speakable;
        json["words"] = Json::array();
        for (int i = 0; i < sentence.n_records; ++i) {
            const UtteranceSyllable& record = sentence.records[i];
            if (i > 0 || has_marks(record)) json["words"].push_back(word(record));
        }
        json["diagnostics"] = Json::array();
        const auto report = [&](std::size_t offset, const std::string& message) {
            json["diagnostics"].push_back({{"offset", offset}, {"message", message}});
        };
        for (const Diagnostic& d : diagnostics) report(d.offset, describe(d, place.text));
        if (explain_) {
            json["abbreviations"] = explanation(explain_abbreviations(sentence, place.text));
            json["runs"] = explanation(explain(sentence.normalized));
        }
        out += json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    }

  private:
    bool explain_;
};

}  // namespace

std::unique_ptr<Format> make_json_format(bool explain) {
    return std::make_unique<JsonFormat>(explain);
}

}  // namespace kavi::tool
