// An SSML document, a sentence a line.

#include "format.h"
#include "tts_ssml.h"

namespace kavi::tool {

namespace {

class SsmlFormat : public Format {
  public:
    explicit SsmlFormat(bool marks) : marks_(marks) {}

    void write(const Place& place, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        out += ssml(sentence, place.text, marks_, lost_);
        keep_least(LOST_MAX, lost_);
    }

    std::set<std::string> take_lost() override {
        std::set<std::string> lost;
        lost.swap(lost_);
        return lost;
    }

  private:
    bool marks_;
    std::set<std::string> lost_;
};

}  // namespace

std::unique_ptr<Format> make_ssml_format(bool marks) {
    return std::make_unique<SsmlFormat>(marks);
}

}  // namespace kavi::tool
