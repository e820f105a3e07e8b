// An SSML document, a sentence a line.

#include "format.h"
#include "tts_ssml.h"

namespace kavi::tool {

namespace {

class SsmlFormat : public Format {
  public:
    explicit SsmlFormat(bool marks) : form_(marks) {}

    void write(const Location& location, const HostSentence& sentence,
               const std::vector<Diagnostic>& /*diagnostics*/, std::string& out) override {
        form_.read(sentence, location.text);
        out += form_.all();
        keep_least(LOST_MAX, form_.lost());
    }

    std::set<std::string> take_lost() override {
        std::set<std::string> lost;
        lost.swap(form_.lost());
        return lost;
    }

  private:
    SsmlForm form_;
};

}  // namespace

std::unique_ptr<Format> make_ssml_format(bool marks) {
    return std::make_unique<SsmlFormat>(marks);
}

}  // namespace kavi::tool
