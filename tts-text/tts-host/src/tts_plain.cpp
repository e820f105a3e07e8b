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
            text += marks.take_opening();
            text += record.syllable;
        }
        marks.add(record, text);
    }
    return text + marks.take_opening();
}

}  // namespace kavi
