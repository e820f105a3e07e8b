// Which byte of its source each byte of a sentence comes from.
#ifndef KAVI_HOST_SENTENCE_SOURCE_H
#define KAVI_HOST_SENTENCE_SOURCE_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"

namespace kavi::host {

// Looks on while a sentence is cut.
class SentenceSource : public tn::CutObserver {
  public:
    // A piece of the source, and the piece of the sentence that stands for it. What is in neither
    // is the same in both.
    struct Replacement {
        const char* source;
        std::size_t source_length;
        std::size_t at;
        std::size_t length;
    };

    // Before a sentence whose source begins at `source`.
    void begin(const char* source) {
        source_ = source;
        replacements_.clear();
    }

    void on_replaced(std::string_view source, int target_at, int length) override {
        replacements_.push_back({source.data(), source.size(), static_cast<std::size_t>(target_at),
                                 static_cast<std::size_t>(length)});
    }

    // Where the byte at `at` of the sentence, which belongs to no replacement, comes from.
    const char* place_of(std::size_t at) const {
        const char* source = source_;
        std::size_t known = 0;  // `source` is where this byte of the sentence comes from
        for (const Replacement& r : replacements_) {
            if (at < r.at) break;
            source = r.source + r.source_length;
            known = r.at + r.length;
        }
        return source + (at - known);
    }

    const std::vector<Replacement>& replacements() const { return replacements_; }

  private:
    const char* source_ = nullptr;
    std::vector<Replacement> replacements_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SENTENCE_SOURCE_H
