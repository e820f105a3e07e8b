// The lexicon and the everyday English that the options ask for.
#ifndef KAVI_TOOL_READINGS_H
#define KAVI_TOOL_READINGS_H

#include <string>

#include "options.h"
#include "tts_everyday.h"

namespace kavi::tool {

class Readings {
  public:
    // Why they cannot be used, in whole lines, or nothing.
    std::string load(const Options& options);

    // Null when nothing is to be rewritten. Lives as long as this.
    const Everyday* everyday() const { return is_on_ ? &everyday_ : nullptr; }

  private:
    Lexicon lexicon_;
    Everyday everyday_{&lexicon_};
    bool is_on_ = false;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_READINGS_H
