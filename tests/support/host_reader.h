// Reads texts through the host layer and by hand, as lists that can be compared.
#ifndef KAVI_TESTS_HOST_READER_H
#define KAVI_TESTS_HOST_READER_H

#include <string>
#include <string_view>
#include <vector>

#include "post_pro_tn_eng.h"
#include "records.h"
#include "tts_host.h"
#include "tts_plain.h"

namespace kavi {

// What is wrong with the pieces and places of a sentence of `text`; empty for nothing.
inline std::string fault_of_places(const HostSentence& sentence, std::string_view text) {
    const std::size_t begin = sentence.source.offset;
    const std::size_t end = begin + sentence.source.length;
    std::size_t at = 0;
    std::size_t offset = begin;
    for (const SourcePiece& piece : sentence.places.pieces()) {
        if (piece.at != at) return "a piece does not begin where the last one ended";
        if (piece.source.offset < offset) return "pieces out of order";
        at += piece.length;
        // What was rewritten may be the source of several pieces.
        offset = piece.source.offset + (piece.by.name == nullptr ? piece.source.length : 0);
        if (piece.source.offset + piece.source.length > end)
            return "a piece is not of this sentence";
        std::string copy(text.substr(piece.source.offset, piece.source.length));
        for (std::size_t i = 0; piece.is_copy && i < copy.size(); ++i) {
            const bool is_blank = copy[i] == '\0' || copy[i] == '<';  // may be read as one
            if (is_blank && sentence.normalized[piece.at + i] == ' ') copy[i] = ' ';
        }
        if (piece.is_copy && sentence.normalized.substr(piece.at, piece.length) != copy)
            return "a piece is no copy";
    }
    if (at != sentence.normalized.size()) return "the pieces are not the sentence";
    offset = begin;
    const std::size_t head = sentence.places.of_record(0).source.offset;
    if (head < begin || head > end) return "the head record is of another sentence";
    for (int i = 1; i < sentence.n_records; ++i) {
        const WordPlace& place = sentence.places.of_record(i);
        if (place.source.offset < offset) return "words out of order";
        // A tag that is opened again may be words to the builder; words that are cut go on.
        const bool opens_again = sentence.places.pieces()[0].source.length == 0;
        if (place.source.length == 0 && !opens_again) return "a word from nowhere";
        if (place.source.offset + place.source.length > end) return "a word of another sentence";
        if (sentence.speakable[place.at] != sentence.records[i].syllable[0]) return "no such word";
        offset = place.source.offset;
    }
    return "";
}

struct ReadText {
    std::vector<std::string> normalized;
    std::vector<std::string> speakable;
    std::vector<std::string> records;
    std::vector<std::string> words;  // of all records
    std::vector<std::string> sources;
    std::vector<std::string> plain;
    std::vector<std::string> places;  // of all records, each as "word=its source"
    std::string fault;                // of the places
    std::vector<Diagnostic> diagnostics;
    std::size_t covered = 0;  // bytes of source, from the start without a gap
    bool all_read = false;
};

inline ReadText read_by_layer(TtsHost& host, std::string_view text) {
    ReadText result;
    PlainForm form;
    bool ends_in_word = false;
    result.all_read = host.read(
        text,
        [&](const HostSentence& sentence) {
            result.normalized.emplace_back(sentence.normalized);
            result.speakable.emplace_back(sentence.speakable);
            result.records.push_back(to_text(sentence.records, sentence.n_records));
            form.read(sentence, text);
            std::string& plain = result.plain.emplace_back(form.before());
            std::string_view after = form.before();
            for (int i = 1; i < sentence.n_records; ++i) {
                if (after.empty() && ends_in_word) result.fault = "words run together";
                ends_in_word = true;
                after = form.after(static_cast<std::size_t>(i));
                plain.append(sentence.records[i].syllable) += after;
                const char* word = sentence.records[i].syllable;
                const TextRange place = sentence.places.of_record(i).source;
                result.words.emplace_back(word);
                result.places.push_back(std::string(word) + "=" +
                                        std::string(text.substr(place.offset, place.length)));
            }
            ends_in_word = ends_in_word && after.empty();
            if (plain != form.all()) result.fault = "the plain form is not its parts";
            if (result.fault.empty()) result.fault = fault_of_places(sentence, text);
            for (auto d = result.diagnostics.rbegin();
                 d != result.diagnostics.rend() && d->offset >= sentence.source.offset; ++d) {
                if (d->finding == Finding::arena_too_small) {
                    result.fault = "what was passed over belongs to a sentence";
                }
            }
            result.sources.emplace_back(
                text.substr(sentence.source.offset, sentence.source.length));
            if (sentence.source.offset == result.covered) result.covered += sentence.source.length;
            return true;
        },
        [&](const Diagnostic& diagnostic) {
            result.diagnostics.push_back(diagnostic);
            if (diagnostic.offset + diagnostic.length > text.size()) {
                result.fault = "a finding after the end of the text";
            }
            return true;
        });
    return result;
}

inline ReadText read_by_layer(std::string_view text, std::size_t capacity = 0) {
    TtsHost host(capacity);
    return read_by_layer(host, text);
}

// The calling order of a host that has the engine alone. For texts of up to 4095 bytes.
inline ReadText read_by_hand(std::string_view text) {
    ReadText result;
    result.all_read = true;
    mem_stack_handle arena = mem_stack_create(0);
    PostProTnEng engine;
    engine.init(arena);
    for (std::string source(text); !source.empty();) {
        char target[SZ_TEXT_MAX_LEN] = {};
        char next[SZ_TEXT_MAX_LEN] = {};
        engine.eng_text_normalize(source.data(), target, next);
        source = next;
        if (target[0] == '\0') continue;
        char speakable[SZ_TEXT_MAX_LEN] = {};
        const bool tokenized = engine.eng_text_tokenize(target, speakable) == 0;
        UtteranceSyllable* utt = nullptr;
        int n_utt = 0;
        const bool built = engine.eng_text_to_utterance_syllable(speakable, utt, n_utt) == 0;
        result.all_read = result.all_read && tokenized && built;
        result.normalized.emplace_back(target);
        result.speakable.emplace_back(speakable);
        result.records.push_back(to_text(utt, n_utt));
        release(utt, n_utt, arena);
    }
    mem_stack_destroy(arena);
    return result;
}

}  // namespace kavi

#endif  // KAVI_TESTS_HOST_READER_H
