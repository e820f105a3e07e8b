// Markup attributes: the words of spans, and what the spans give them.

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string_view>

#include "../markup/markup_tags.h"
#include "TtsString.h"
#include "text_reader.h"
#include "word_filler.h"

namespace kavi {

namespace {

using Field = char[20];

void set_field(Field& field, std::string_view value) {
    const std::size_t length = std::min(value.size(), sizeof(Field) - 1);
    std::memset(field, 0, sizeof(Field));
    std::memcpy(field, value.data(), length);
}

bool append_field(Field& field, std::string_view value) {
    return safe_strncat(field, value.data(), static_cast<int>(value.size()), sizeof(Field)) == 0;
}

// Cuts the next field off a list whose fields are separated by runs of `separator`; empty at the
// end of the list.
std::string_view next_field(std::string_view& list, char separator) {
    list.remove_prefix(std::min(list.find_first_not_of(separator), list.size()));
    const std::string_view field = list.substr(0, list.find(separator));
    list.remove_prefix(field.size());
    return field;
}

struct ProsodyField {
    std::string_view prefix;
    Field CssmlTag::*field;
};

constexpr ProsodyField PROSODY_FIELDS[] = {
    {"pitch=", &CssmlTag::pro_pitch},
    {"rate=", &CssmlTag::pro_rate},
    {"volume=", &CssmlTag::pro_volume},
    {"spectrum=", &CssmlTag::pro_spectrum},
};

// One «name="value"»: the character after "=" and the last one are the quotes.
bool set_prosody_field(CssmlTag& tag, std::string_view attribute) {
    const auto* row =
        std::find_if(std::begin(PROSODY_FIELDS), std::end(PROSODY_FIELDS),
                     [=](const auto& field) { return tn::begins_with(attribute, field.prefix); });
    if (row == std::end(PROSODY_FIELDS)) return false;
    const std::string_view quoted = attribute.substr(row->prefix.size());
    set_field(tag.*row->field, quoted.size() < 2 ? "" : quoted.substr(1, quoted.size() - 2));
    return true;
}

bool set_prosody(CssmlTag& tag, std::string_view attributes) {
    for (;;) {
        const std::string_view attribute = next_field(attributes, ' ');
        if (attribute.empty()) return true;
        if (!set_prosody_field(tag, attribute)) return false;
    }
}

bool set_attribute(CssmlTag& tag, std::string_view name, std::string_view value) {
    if (tn::begins_with(name, "quill_effect")) return append_field(tag.quill_effect, value);
    if (tn::begins_with(name, "prosody")) return set_prosody(tag, value);
    if (tn::begins_with(name, "poem")) {
        set_field(tag.poem, value);
    } else if (tn::begins_with(name, "emphasis")) {
        set_field(tag.emphasis, value);
    } else {
        return false;
    }
    return true;
}

bool set_attributes(CssmlTag& tag, std::string_view names, std::string_view values) {
    for (;;) {
        const std::string_view name = next_field(names, '\t');
        if (name.empty()) return true;
        if (!set_attribute(tag, name, next_field(values, '\t'))) return false;
    }
}

// A chain of spans: their names, or their values, outermost first, with tabs between them.
constexpr int CHAIN_SIZE = 200;

bool fits_chain(const char* chain) {
    return std::strlen(chain) < CHAIN_SIZE;
}

bool join(std::initializer_list<std::string_view> parts, char (&chain)[CHAIN_SIZE]) {
    chain[0] = '\0';
    return std::all_of(parts.begin(), parts.end(), [&](std::string_view part) {
        return safe_strncat(chain, part.data(), static_cast<int>(part.size()), CHAIN_SIZE) == 0;
    });
}

}  // namespace

bool PostProTnEng::insert_breaktime(int n, UtteranceSyllable* utt, char* time_str) {
    set_field(utt[n - 1].cssml_tag.breaktime, time_str);
    return true;
}

bool PostProTnEng::insert_emphasis_in(int n, UtteranceSyllable* utt, const char* value_str) {
    set_field(utt[n - 1].cssml_tag.emphasis, value_str);
    return true;
}

bool PostProTnEng::insert_poem_in(int n, UtteranceSyllable* utt, const char* value_str) {
    set_field(utt[n - 1].cssml_tag.poem, value_str);
    return true;
}

bool PostProTnEng::insert_quill_effect_in(int n, UtteranceSyllable* utt, const char* value_str) {
    return append_field(utt[n - 1].cssml_tag.quill_effect, value_str);
}

bool PostProTnEng::insert_prosody_in(int n, UtteranceSyllable* utt, const char* value_str) {
    return set_prosody(utt[n - 1].cssml_tag, value_str);
}

bool PostProTnEng::insert_ssml_info_in(int n, UtteranceSyllable* utt, const char* value_str,
                                       const char* tag_type) {
    return set_attributes(utt[n - 1].cssml_tag, tag_type, value_str);
}

bool PostProTnEng::insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                                    char* buffer_target, const char* tag_type) {
    if (!fits_chain(value_str) || !fits_chain(tag_type)) return false;
    WordFiller filler(*this, utt + n);
    filler.enter(tag_type, value_str);
    const bool stored = tn::read_span(buffer_target, _mem_handle, filler);
    n = static_cast<int>(filler.record() - utt);
    return stored;
}

// All words of a span have the same attributes. What cannot be applied to one is left out of all.
void WordFiller::enter(const char* names, const char* values) {
    names_ = names;
    values_ = values;
    static_cast<void>(set_attributes(markup_.emplace(), names_, values_));
}

bool WordFiller::breaktime(std::string_view value) {
    set_field(record_[-1].cssml_tag.breaktime, value);
    return true;
}

bool WordFiller::span(std::string_view name, std::string_view value, char* content) {
    char tag_down[CHAIN_SIZE];
    char value_down[CHAIN_SIZE];
    const std::string_view joint = markup_ ? "\t" : "";
    if (!join({names_, joint, name}, tag_down)) return false;
    if (!join({values_, joint, value}, value_down)) return false;
    int stored = 0;
    const bool complete = engine_.insert_ssml_info(stored, record_, value_down, content, tag_down);
    record_ += stored;
    return complete;
}

}  // namespace kavi
