// A user's own readings.
#ifndef KAVI_TTS_LEXICON_H
#define KAVI_TTS_LEXICON_H

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kavi {

// Lines "written<TAB>spoken", or "written<TAB>spoken<TAB>any case"; "#" begins a remark, empty
// lines are passed over. What is written stands for whole words, numbers or marks, in UTF-8; what
// is spoken is words of ASCII letters.
class Lexicon {
  public:
    // One line: what is written there, and what is spoken for it.
    struct Entry {
        std::string written;  // in lower case when any case is meant
        std::string spoken;
        bool any_case;
        std::size_t line_number;
    };

    // Adds the lines of a file named `file`. False when one of them is wrong: `error` says which
    // and how, as "FILE:LINE: text", and the lexicon has the lines before it.
    bool add(const std::string& file, std::string_view bytes, std::string& error);

    // The longest entry for what begins at `at` of a text, where a word, a number or a mark begins,
    // or null; its length there is that of `written`.
    const Entry* find(std::string_view text, std::size_t at) const;

    const std::string& file() const { return file_; }
    bool empty() const { return entries_.empty(); }

  private:
    void index(std::size_t entry);
    void make_filter();

    std::string file_;
    std::vector<Entry> entries_;
    std::unordered_map<std::string, std::size_t> exact_;     // entries by what is written
    std::unordered_map<std::string, std::size_t> any_case_;  // the same in lower case

    // For the first word, number or mark in lower case, how long the entries are that begin with
    // it: each length once, the longest first.
    std::unordered_map<std::string, std::vector<std::size_t>> lengths_;

    // A bit for the hash of each of these: most words of a text are in none and are told so by it.
    std::vector<bool> filter_;
};

}  // namespace kavi

#endif  // KAVI_TTS_LEXICON_H
