#include "tts_plain.h"

#include "written_marks.h"

namespace kavi {

std::string plain_text(const UtteranceSyllable* records, int n_records) {
    std::string text;
    host::WrittenMarks marks;
    for (int i = 0; i < n_records; ++i) {
        const UtteranceSyllable& record = records[i];
        if (i > 0) {
            if (!text.empty()) text += ' ';
            marks.append_opening(text);
            text += record.syllable;
        }
        marks.add(record, text);
    }
    marks.append_opening(text);
    return text;
}

}  // namespace kavi
