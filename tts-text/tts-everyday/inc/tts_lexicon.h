// A user's own readings.
#ifndef KAVI_TTS_LEXICON_H
#define KAVI_TTS_LEXICON_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavi {

// Lines "written<TAB>spoken", or "written<TAB>spoken<TAB>any case"; "#" begins a remark, empty
// lines and blanks around each part are passed over, and so is a byte order mark. What is written
// are whole words, numbers or marks, in UTF-8; what is spoken is words of ASCII letters.
class Lexicon {
  public:
    static constexpr std::size_t WRITTEN_MAX = 100;  // bytes
    static constexpr std::size_t SPOKEN_MAX = 200;
    static constexpr std::size_t ERRORS_MAX = 20;

    // One line: what is written there, and what is spoken for it.
    struct Entry {
        std::string spoken;
        std::shared_ptr<const std::string> file;
        std::size_t line_number;
    };
    struct Match {
        const Entry* entry = nullptr;  // the lexicon's; null for none
        std::size_t length = 0;        // of the text
        bool reaches_end = false;      // of the text: more of it may make another match
    };

    // Adds the lines of a file named `file`, those that are right. False when one is wrong: `error`
    // then says which and how, each as a line "FILE:LINE: text", and after ERRORS_MAX how many
    // more there are. What an earlier call has added stays.
    bool add(const std::string& file, std::string_view bytes, std::string& error);

    // The longest entry for what begins at `at` of a text, where a word, a number or a mark begins.
    // What belongs to an emoji after it, as a variation selector or a skin tone, is matched with
    // it. Reads no more than WRITTEN_MAX bytes after the first word and what belongs to it.
    Match find(std::string_view text, std::size_t at) const;

    bool empty() const { return entries_.empty(); }

  private:
    // What is written, token by token: each node is known by the one before it and its token.
    struct Tree {
        std::map<std::string, std::uint32_t> nodes;
        std::vector<std::size_t> entries{NONE};  // by node; the first is the root

        bool add(std::string_view written, std::size_t entry);
        std::size_t find(std::string_view text, std::size_t at, bool any_case, Match& match) const;
    };
    static constexpr std::size_t NONE = SIZE_MAX;

    const char* add_line(std::string_view line, const std::shared_ptr<const std::string>& file,
                         std::size_t number);
    void make_filter();

    std::vector<Entry> entries_;
    Tree exact_;
    Tree any_case_;  // in lower case

    // The first word, number or mark of each entry, in lower case; and a bit for the hash of each:
    // most words of a text are in none and are told so by it.
    std::vector<std::size_t> hashes_;
    std::vector<bool> filter_;
};

}  // namespace kavi

#endif  // KAVI_TTS_LEXICON_H
