// Month names, numeric dates and years.

#include <cassert>
#include <cstring>

#include "months.h"
#include "parts.h"

namespace kavi {

using namespace tn;

int PostProTnEng::month_def(char* sz_source) {
    return month_name(sz_source) != nullptr ? 1 : 0;
}

char* PostProTnEng::month_read(char* sz_source_text, char* sz_target_text) {
    const char* name = month_name(sz_source_text);
    if (name == nullptr) name = sz_source_text;
    std::memcpy(sz_target_text, name, std::strlen(name) + 1);
    return sz_target_text;
}

// Day, "/" or "-", month, "/", year. No value is tested.
int PostProTnEng::data_decide(Section* p_section) {
    const auto is_part = [this](Section* part) {
        return part != nullptr && (number_def(part->sz_char) == 1 || month_def(part->sz_char) == 1);
    };
    const Section* separator = ahead(p_section, 1);
    const bool is_date = (is_mark(separator, '/') || is_mark(separator, '-')) &&
                         is_part(ahead(p_section, 2)) && is_mark(ahead(p_section, 3), '/') &&
                         is_part(ahead(p_section, 4));
    return is_date ? 1 : 0;
}

Section* PostProTnEng::data_number(Section* p_section, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return p_section;
    Section* month = ahead(p_section, 2);
    Section* year = ahead(month, 2);
    assert(month != nullptr && year != nullptr);  // data_decide has seen them
    Reading reading(sz_target_text);
    reading.append(" the ");
    str_turn(p_section->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(" of ");
    month_read(month->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(" ");
    if (is_number(year)) {
        year_read(year->sz_char, scratch.text());
    } else {
        month_read(year->sz_char, scratch.text());
    }
    reading.take(scratch);
    return year;
}

char* PostProTnEng::year_read(char* sz_source_text, char* sz_target_text) {
    const std::size_t length = std::strlen(sz_source_text);
    if (length != 2 && length != 4) return sz_target_text;
    Scratch scratch(_mem_handle);
    if (!scratch) return sz_target_text;
    Reading reading(sz_target_text);
    char* years = sz_source_text + length - 2;
    if (length == 2) {
        reading.append("two thousand ");
    } else {
        char century[] = {sz_source_text[0], sz_source_text[1], '\0'};
        if (std::strcmp(century, "20") == 0) {
            reading.append(" two thousand ");
        } else {
            number_read(century, scratch.text());
            reading.take(scratch);
        }
        const long value = value_of(years);
        if (value > 0 && value < 10) reading.append(" zero ");
    }
    number_read(years, scratch.text());
    reading.take(scratch);
    return sz_target_text;
}

}  // namespace kavi
