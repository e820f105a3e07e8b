// What the readers do not say of a sentence.
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
    // Before a text.
    void begin_text() { told_marks_.reset(); }

    // Before a sentence that is read to `speakable`.
    void begin(const char* sentence, const char* speakable) {
        sentence_ = sentence;
        speakable_ = speakable;
        speakable_length_ = 0;
        is_after_money_ = false;
        findings_.clear();
        marks_ = told_marks_;
    }

    void add_plain_text(std::string_view source, int speakable_length) {
        if (source.size() == 1) add_mark(source, speakable_length);
        speakable_length_ = speakable_length;
        is_after_money_ = false;
    }
    void add_step(const tn::ReadingStep& step);

    // Those of the sentence, which are told now: marks that are among them are not told again.
    const std::vector<Diagnostic>& tell() {
        told_marks_ = marks_;
        return findings_;
    }

  private:
    void add_mark(std::string_view mark, int speakable_length);
    void report(std::string_view source, Finding finding);

    const char* sentence_ = nullptr;
    const char* speakable_ = nullptr;
    int speakable_length_ = 0;
    bool is_after_money_ = false;  // which says the "$" that may follow
    std::vector<Diagnostic> findings_;
    std::bitset<128> marks_;  // with a finding, in this text and up to here in this sentence
    std::bitset<128> told_marks_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_FINDINGS_H
