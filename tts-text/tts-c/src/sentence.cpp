#include <algorithm>
#include <vector>

#include "reader.h"
#include "tts_explain.h"
#include "tts_names.h"
#include "tts_plain.h"

namespace kavi::c {

namespace {

kavi_range range_of(const TextRange& range) {
    return {range.offset, range.length};
}

// Most words are followed by a blank alone.
kavi_text short_text(std::string_view text, Pool& pool) {
    if (text.empty()) return {"", 0};
    return text == " " ? kavi_text{" ", 1} : pool.text(text);
}

void fill(kavi_word& word, const UtteranceSyllable& record, const WordPlace& place, Pool& pool) {
    static_assert(KAVI_MARKS_MAX == sizeof record.punc_arr / sizeof *record.punc_arr);
    const bool has_word = record.syllable != nullptr;
    word.text = pool.text(has_word ? record.syllable : "");
    word.source = range_of(place.source);
    word.pause = record.pause_type;
    word.n_marks = record.n_punc;
    for (int i = 0; i < record.n_punc; ++i) {
        word.marks[i] = static_cast<std::uint8_t>(record.punc_arr[i]);
    }
    word.break_time = pool.value(record.cssml_tag.breaktime);
    const char** attribute = word.attributes;
    for (const auto& [name, value] : attributes(record.cssml_tag)) *attribute++ = pool.value(value);
}

}  // namespace

kavi_sentence copied(const HostSentence& sentence, std::string_view text, std::size_t text_begin,
                     std::uint32_t wanted, PlainForm& plain, Pool& pool) {
    const auto n_records = static_cast<std::size_t>(sentence.n_records);
    auto* words = pool.array<kavi_word>(n_records);
    const WordPlace* places = sentence.places.words();
    plain.read(sentence, text, text_begin);
    for (std::size_t i = 0; i < n_records; ++i) {
        fill(words[i], sentence.records[i], places[i], pool);
        words[i].after = short_text(i > 0 ? plain.after(i) : "", pool);
    }
    kavi_sentence copy = {};
    copy.source = range_of(sentence.source);
    copy.normalized = pool.text(sentence.normalized);
    copy.speakable = pool.text(sentence.speakable);
    copy.plain = pool.text(plain.all());
    copy.before = short_text(plain.before(), pool);
    copy.head = words;
    copy.words = words + 1;
    copy.n_words = n_records - 1;
    copy.ends_sentence = sentence.ends_sentence ? 1 : 0;
    if ((wanted & KAVI_RUNS) == 0) return copy;
    std::vector<kavi_run> runs;
    explain(
        sentence, text,
        [&](const ExplainedRun& run) {
            runs.push_back(
                {range_of(run.source), pool.text(run.rule).data, pool.text(run.reading)});
        },
        text_begin);
    auto* kept = pool.array<kavi_run>(runs.size());
    std::copy(runs.begin(), runs.end(), kept);
    copy.runs = kept;
    copy.n_runs = runs.size();
    return copy;
}

}  // namespace kavi::c
