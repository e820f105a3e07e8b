// Setting the markup attributes of records.

#include <algorithm>
#include <cstring>
#include <string_view>

#include "../markup/markup_tags.h"
#include "TtsString.h"
#include "span_chain.h"
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

// Removes the next field from a list and returns it. Runs of `separator` separate fields. Empty at
// the end of the list.
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

// Sets one «name="value"». The characters after "=" and at the end are taken for the quotes. False
// for an unknown name.
bool set_prosody_field(CssmlTag& tag, std::string_view attribute) {
    for (const ProsodyField& row : PROSODY_FIELDS) {
        if (!tn::begins_with(attribute, row.prefix)) continue;
        const std::string_view quoted = attribute.substr(row.prefix.size());
        set_field(tag.*row.field, quoted.size() < 2 ? "" : quoted.substr(1, quoted.size() - 2));
        return true;
    }
    return false;
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

bool tn::set_attributes(CssmlTag& tag, AttributeLists& lists) {
    for (;;) {
        const std::string_view name = next_field(lists.names, '\t');
        if (name.empty()) return true;
        const std::string_view value = next_field(lists.values, '\t');
        lists.lacks_value = value.empty();
        if (!set_attribute(tag, name, value)) return false;
    }
}

void tn::set_breaktime(UtteranceSyllable& record, std::string_view value) {
    set_field(record.cssml_tag.breaktime, value);
}

bool PostProTnEng::insert_breaktime(int n, UtteranceSyllable* utt, char* time_str) {
    tn::set_breaktime(utt[n - 1], time_str);
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
    tn::AttributeLists lists = {tag_type, value_str};
    return tn::set_attributes(utt[n - 1].cssml_tag, lists);
}

}  // namespace kavi
