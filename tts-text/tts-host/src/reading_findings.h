// What the readers do not say of a sentence.
#ifndef KAVI_HOST_READING_FINDINGS_H
#define KAVI_HOST_READING_FINDINGS_H

#include <vector>

#include "for_host_layer.h"
#include "tts_findings.h"

namespace kavi::host {

// Looks on while a sentence is read, and notes digits that are not, readings that were cut, and
// tags that were passed over; with offsets in the sentence.
class ReadingFindings {
  public:
    // Before a sentence that begins at `sentence`.
    void begin(const char* sentence) {
        sentence_ = sentence;
        findings_.clear();
    }

    void add_step(const tn::SectionDispatcher& step);

    const std::vector<Diagnostic>& findings() const { return findings_; }

  private:
    void report(const tn::Token* token, Finding finding);

    const char* sentence_ = nullptr;
    std::vector<Diagnostic> findings_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_FINDINGS_H
