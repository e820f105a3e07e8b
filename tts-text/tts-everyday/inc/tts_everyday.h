// Everyday English, and a user's own readings, as words that the engine reads as they are.
#ifndef KAVI_TTS_EVERYDAY_H
#define KAVI_TTS_EVERYDAY_H

#include <optional>
#include <string_view>

#include "tts_lexicon.h"
#include "tts_rewriter.h"

namespace kavi {

// Changes in a release when anything is read otherwise than in the one before it; scripts/release
// compares.
inline constexpr int READINGS_VERSION = 1;

// What is rewritten, each by rules of its own.
enum class EverydayClass {
    titles,        // Mr. etc. U.S.
    contractions,  // won't, Tom's
    currencies,    // $1.5 million, €20.99
    units,         // 5 km, 25°C
    years,         // 1990s, 2010-2015, 2020-03-01
    times,         // 5:30 p.m.
    addresses,     // telephone numbers, e-mail, web
    roman,         // Henry VIII, World War II
    numbers,       // 1st, ½, 5%, -5, 0.5
    letters,       // café, quotes, dashes
    shields,       // words that end like an abbreviation of the engine: left.
    marks,         // *stress*, > quoted, 6 * 7, C++, /usr/bin, readme.txt
};
constexpr int EVERYDAY_CLASSES = static_cast<int>(EverydayClass::marks) + 1;

const char* name_of(EverydayClass everyday_class);
std::optional<EverydayClass> everyday_class_of(std::string_view name);

// Rewrites what the classes that are on read, and what the lexicon has, never inside a tag of the
// markup language. At a word the first rule that reads is taken; an entry of the lexicon in what it
// would read wins. Linear in the text.
class Everyday : public TextRewriter {
  public:
    // No class is on. The lexicon stays the caller's; null for none.
    explicit Everyday(const Lexicon* lexicon) : lexicon_(lexicon) {}

    void set(EverydayClass everyday_class, bool on) {
        const unsigned bit = 1U << static_cast<unsigned>(everyday_class);
        classes_ = on ? classes_ | bit : classes_ & ~bit;
    }
    void set_all(bool on) { classes_ = on ? (1U << EVERYDAY_CLASSES) - 1 : 0; }

    // 3/1/2020 is March first, not the third of January.
    void set_american_dates(bool on) { american_dates_ = on; }

    bool next(std::string_view text, Rewriting& rewriting) const override;
    bool takes_growing_texts() const override { return true; }

  private:
    const Lexicon* lexicon_;
    unsigned classes_ = 0;
    bool american_dates_ = false;
};

}  // namespace kavi

#endif  // KAVI_TTS_EVERYDAY_H
