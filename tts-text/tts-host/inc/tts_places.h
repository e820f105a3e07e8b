// Where in a text the parts of its sentences come from.
#ifndef KAVI_TTS_PLACES_H
#define KAVI_TTS_PLACES_H

#include <cstddef>
#include <vector>

namespace kavi {

// Bytes of the text given to read().
struct TextRange {
    std::size_t offset;
    std::size_t length;
};

// What wrote other bytes than the text has.
struct RuleId {
    const char* name = nullptr;   // "abbreviation", or of a rewriter; null for none
    const char* file = nullptr;   // of the lexicon's line that says so; null for none
    std::size_t line_number = 0;  // there, from 1
};

// A piece of the normalised sentence, and the bytes of the text that it was made of. Without a
// source it is a tag that opens or closes a span where the text was cut, or what goes on with words
// that were cut; without a length, or as a blank, it is what was left out.
struct SourcePiece {
    std::size_t at;  // in the normalised sentence
    std::size_t length;
    TextRange source;
    bool
        is_copy;  // byte for byte; a NUL, and a "<" that words must not make a tag with, is a blank
    RuleId by;
};

// Where the word of a record comes from. The words of one number share a source.
struct WordPlace {
    TextRange source;
    std::size_t at;  // of the word, in the speakable text
};

// The places of one sentence, found when they are first asked for.
class SentencePlaces {
  public:
    // In order; together they are the normalised sentence.
    virtual const std::vector<SourcePiece>& pieces() = 0;

    // Of each record, as many as there are; the head record has an empty source.
    virtual const WordPlace* words() = 0;
    const WordPlace& of_record(int n) { return words()[n]; }

    // The source of `length` bytes at `at` of the normalised sentence: all of what was rewritten
    // for any byte of it. Empty for what has none.
    TextRange source_of(std::size_t at, std::size_t length);

  protected:
    ~SentencePlaces() = default;
};

}  // namespace kavi

#endif  // KAVI_TTS_PLACES_H
