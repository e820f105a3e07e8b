// Finding what the readers leave unread in a sentence.
#ifndef KAVI_HOST_READING_FINDINGS_H
#define KAVI_HOST_READING_FINDINGS_H

#include <bitset>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "tts_findings.h"

namespace kavi::host {

// Observes the reading of a sentence, and notes digits that are not read, marks without a word,
// readings that were cut, and tags that were passed over; with offsets in the sentence.
class ReadingFindings {
  public:
    // To be called before each text.
    void begin_text() { reported_marks_.reset(); }

    // To be called before each sentence. `speakable` is the text that it is read to.
    void begin(const char* sentence, const char* speakable) {
        sentence_ = sentence;
        speakable_ = speakable;
        speakable_length_ = 0;
        is_after_money_ = false;
        findings_.clear();
        marks_ = reported_marks_;
    }

    void add_plain_text(std::string_view source, int speakable_length) {
        if (source.size() == 1) add_mark(source, speakable_length);
        speakable_length_ = speakable_length;
        is_after_money_ = false;
    }
    void add_step(const tn::ReadingStep& step);

    // The findings of the sentence, which are reported now: its marks are not reported again.
    const std::vector<Diagnostic>& take() {
        reported_marks_ = marks_;
        return findings_;
    }

  private:
    void add_mark(std::string_view mark, int speakable_length);
    void report(std::string_view source, Finding finding);

    const char* sentence_ = nullptr;
    const char* speakable_ = nullptr;
    int speakable_length_ = 0;
    bool is_after_money_ = false;  // then a "$" has been read with the amount
    std::vector<Diagnostic> findings_;
    std::bitset<128> marks_;           // with a finding, in this sentence or reported before
    std::bitset<128> reported_marks_;  // in this text
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_FINDINGS_H
