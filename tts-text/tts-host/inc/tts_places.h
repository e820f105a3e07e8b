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

// A piece of the normalised sentence, and the bytes of the text that it stands for. A piece as long
// as its source is a copy of it, unless a rule has rewritten it. A piece without a source
// is a tag that opens or closes a span where the text was cut; one without a length, or with a
// blank for its source, is what was left out.
struct SourcePiece {
    std::size_t at;  // in the normalised sentence
    std::size_t length;
    TextRange source;
    const char* rule;            // that wrote it: "abbreviation", or of a rewriter; null for none
    const char* file = nullptr;  // of the lexicon that says so, and where there
    std::size_t line_number = 0;
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
