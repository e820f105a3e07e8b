// Markup attributes: the words of spans, and what the spans give them.

#include <algorithm>
#include <cstring>
#include <string_view>

#include "../common/markup_tags.h"
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
    return tn::BoundedText(field, sizeof(Field)).append(value);
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

// One «name="value"»: the character behind "=" and the last one are the quotes.
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
    std::string_view names = tag_type;
    std::string_view values = value_str;
    for (;;) {
        const std::string_view name = next_field(names, '\t');
        if (name.empty()) return true;
        const std::string_view value = next_field(values, '\t');
        if (!set_attribute(utt[n - 1].cssml_tag, name, value)) return false;
    }
}

bool PostProTnEng::insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                                    char* buffer_target, const char* tag_type) {
    WordFiller filler(*this, n, utt);
    if (!filler.enter(value_str, tag_type)) return false;
    tn::SpanBuffers buffers(_mem_handle, buffer_target);
    return buffers && tn::read_text(*this, buffer_target, buffers.word(), buffers.tag(), filler);
}

// A word whose attributes cannot all be applied keeps those that could.
bool WordFiller::word(const char* word) {
    if (!engine_.insert_syllable(n_, utt_, word)) return false;
    ++n_;
    static_cast<void>(engine_.insert_ssml_info_in(n_, utt_, value_down_, tag_down_));
    return true;
}

// The chains grow by the span for as long as its words are read.
bool WordFiller::span(const char* name, const char* value, char* content) {
    const int names_before = names_.length();
    const int values_before = values_.length();
    const char* joint = names_before > 0 ? "\t" : "";
    if (!names_.append(joint) || !names_.append(name)) return false;
    if (!values_.append(joint) || !values_.append(value)) return false;
    if (!engine_.insert_ssml_info(n_, utt_, value_down_, content, tag_down_)) return false;
    names_.cut(names_.length() - names_before);
    values_.cut(values_.length() - values_before);
    return true;
}

}  // namespace kavi
