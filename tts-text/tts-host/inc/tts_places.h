// Which ranges of a text the parts of its sentences come from.
#ifndef KAVI_TTS_PLACES_H
#define KAVI_TTS_PLACES_H

#include <cstddef>
#include <vector>

namespace kavi {

// A range of the text given to read(), in bytes.
struct TextRange {
    std::size_t offset;
    std::size_t length;
};

// The rule that replaced bytes of the text by others. Its texts live as long as the rewriter.
struct RuleId {
    const char* name = nullptr;   // "abbreviation", or of a rewriter; null for none
    const char* file = nullptr;   // of the lexicon's line that says so; null for none
    std::size_t line_number = 0;  // there, from 1
};

// A piece of the normalised sentence, and the range of the text that it was made of. A piece with
// an empty source is a tag that opens or closes a span where the text was cut, or the rest of
// rewritten words that were cut. A piece of length 0, or a blank, stands for a source that was left
// out.
struct SourcePiece {
    std::size_t at;  // its offset in the normalised sentence
    std::size_t length;
    TextRange source;
    // Whether it is its source byte for byte, except that a blank is in the place of a NUL and of a
    // "<" that would make a tag with rewritten words.
    bool is_copy;
    RuleId by;
};

// Where the word of a record comes from. The words of one number share a source.
struct WordPlace {
    TextRange source;
    std::size_t at;  // the offset of the word in the speakable text
};

// The places of one sentence, computed when they are first asked for.
class SentencePlaces {
  public:
    // The pieces of the normalised sentence, in order and without gaps.
    virtual const std::vector<SourcePiece>& pieces() = 0;

    // An array with a place for each record. That of the head record has an empty source.
    virtual const WordPlace* words() = 0;
    const WordPlace& of_record(int n) { return words()[n]; }

    // The source of `length` bytes at offset `at` of the normalised sentence: all of what was
    // rewritten for any byte of it. Empty where there is none.
    TextRange source_of(std::size_t at, std::size_t length);

  protected:
    ~SentencePlaces() = default;
};

}  // namespace kavi

#endif  // KAVI_TTS_PLACES_H
