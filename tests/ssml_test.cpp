// Records as SSML: every kind of value, known to the standard and not; elements; what is escaped.

#include "expect_table.h"
#include "tts_ssml.h"

namespace kavi {
namespace {

// The sentences of a text, and what was lost.
TableRow document(const std::string& text, bool has_marks) {
    TableRow row{text, "", ""};
    SsmlForm form(has_marks);
    TtsHost().read(
        text,
        [&](const HostSentence& sentence) {
            form.read(sentence, text);
            std::string element(form.all());
            if (!element.empty()) element.back() = '|';
            row[1] += element;
            return true;
        },
        nullptr);
    for (const std::string& name : form.lost()) row[2] += (row[2].empty() ? "" : " ") + name;
    return row;
}

TEST(Ssml, IsAsInTheTables) {
    expect_table("ssml", [](const std::string& text) { return document(text, false); });
    expect_table("ssml_marks", [](const std::string& text) { return document(text, true); });
}

}  // namespace
}  // namespace kavi
