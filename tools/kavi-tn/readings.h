// The lexicon and the everyday English that the options ask for.
#ifndef KAVI_TOOL_READINGS_H
#define KAVI_TOOL_READINGS_H

#include <string>

#include "options.h"
#include "tts_everyday.h"

namespace kavi::tool {

class Readings {
  public:
    // Reads the lexicon and sets the classes. To be called once. Returns messages, in whole lines,
    // why they cannot be used, or "".
    std::string load(const Options& options);

    // What rewrites texts, or null when nothing does. Owned by this object.
    const Everyday* everyday() const { return is_on_ ? &everyday_ : nullptr; }

  private:
    Lexicon lexicon_;
    Everyday everyday_{&lexicon_};
    bool is_on_ = false;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_READINGS_H
