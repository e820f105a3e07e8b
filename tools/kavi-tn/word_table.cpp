#include "word_table.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <string>
#include <vector>

namespace kavi::tool {

namespace {

const char* pause_name(PAUSE_type pause) {
    switch (pause) {
        case PAUSE_SYLLABLE_FE: return "syllable";
        case PAUSE_WORD_FE: return "word";
        case PAUSE_PHRASE_FE: return "phrase";
        case PAUSE_INTONATION_PHRASE_FE: return "intonation phrase";
        case PAUSE_SENTENCE_FE: return "sentence";
        case PAUSE_SYLLABLE_FORCE_FE: return "syllable, forced";
        case PAUSE_WORD_FORCE_FE: return "word, forced";
        case PAUSE_PHRASE_FORCE_FE: return "phrase, forced";
        case PAUSE_INTONATION_PHRASE_FORCE_FE: return "intonation phrase, forced";
        case PAUSE_PHONE_FE: return "phone";
        case PAUSE_SYL_FE: return "syl";
        case PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE: return "intonation phrase, by rule";
    }
    return "";
}

const char* punc_name(PUNC_type punc) {
    constexpr const char* NAMES[] = {"unknown", "dun",     "dou",    "fen",    "ju",
                                     "wen",     "tan",     "mao",    "zuoshu", "youshu",
                                     "zuoyin",  "youyin",  "zuokuo", "youkuo", "shenglue",
                                     "pozhe",   "tnbegin", "tnend",  "POIB",   "POIE"};
    return NAMES[punc];
}

void join(std::string& list, const std::string& item) {
    if (!list.empty()) list += ' ';
    list += item;
}

std::string marks(const UtteranceSyllable& record) {
    std::string list;
    for (int i = 0; i < record.n_punc; ++i) join(list, punc_name(record.punc_arr[i]));
    return list;
}

std::string attributes(const CssmlTag& tag) {
    const std::pair<const char*, const char*> fields[] = {{"emphasis=", tag.emphasis},
                                                          {"pitch=", tag.pro_pitch},
                                                          {"rate=", tag.pro_rate},
                                                          {"volume=", tag.pro_volume},
                                                          {"spectrum=", tag.pro_spectrum},
                                                          {"poem=", tag.poem},
                                                          {"quill_effect=", tag.quill_effect}};
    std::string list;
    for (const auto& [name, value] : fields) {
        if (*value != '\0') join(list, std::string(name) + value);
    }
    return list;
}

using Row = std::array<std::string, 5>;

Row row_of(const UtteranceSyllable& record) {
    const bool is_word = record.syllable != nullptr;
    return {is_word ? record.syllable : "(head)", pause_name(record.pause_type), marks(record),
            record.cssml_tag.breaktime, attributes(record.cssml_tag)};
}

}  // namespace

void write_word_table(std::ostream& out, const HostSentence& sentence) {
    std::vector<Row> rows = {{"word", "pause", "marks", "break", "attributes"}};
    for (int i = 0; i < sentence.n_records; ++i) {
        const UtteranceSyllable& record = sentence.records[i];
        const bool has_marks = record.n_punc > 0 || record.cssml_tag.breaktime[0] != '\0';
        if (i > 0 || has_marks) rows.push_back(row_of(record));
    }
    std::array<std::size_t, 5> widths = {};
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i] + std::string(widths[i] + 2 - row[i].size(), ' ');
        }
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
    out << '\n';
}

}  // namespace kavi::tool
