#include "own_words.h"

#include "tokens.h"

namespace kavi::everyday {

namespace {

// What makes one written word of the letters before and after it: "I'm", "p.m.", "km/h".
constexpr std::string_view JOINTS[] = {"'", ".", "@", "/", "’"};

bool is_letter_at(std::string_view text, std::size_t at) {
    return at < text.size() && is_letter(text[at]);
}

}  // namespace

void OwnWords::look_from(std::size_t begin, std::size_t end) {
    std::size_t n_before = 0;
    while (n_before < words_.size() && words_[n_before].at < begin) ++n_before;
    words_.erase(words_.begin(), words_.begin() + static_cast<std::ptrdiff_t>(n_before));
    looked_to_ = std::max(looked_to_, begin);
    while (looked_to_ < end) {
        const Lexicon::Match match = lexicon_->find(text_, looked_to_);
        reaches_end_ = reaches_end_ || match.reaches_end;
        if (match.entry != nullptr) words_.push_back({looked_to_, match});
        looked_to_ += match.entry != nullptr ? match.length : cluster_length(text_, looked_to_);
    }
}

Lexicon::Match OwnWords::match_at(std::size_t at) {
    look_from(at, at + 1);
    return !words_.empty() && words_[0].at == at ? words_[0].match : Lexicon::Match{};
}

// Whether a letter follows or precedes it, with nothing but such a mark between.
bool OwnWords::is_part_of_word(const OwnWord& word) {
    const std::size_t end = word.at + word.match.length;
    for (const std::string_view joint : JOINTS) {
        const std::size_t length = joint.size();
        reaches_end_ = reaches_end_ || end + length >= text_.size();
        const bool is_after = is_letter(text_[word.at]) && word.at > length &&
                              text_.substr(word.at - length, length) == joint &&
                              is_letter(text_[word.at - length - 1]);
        const bool is_before = is_letter(text_[end - 1]) && text_.substr(end, length) == joint &&
                               is_letter_at(text_, end + length);
        if (is_after || is_before) return true;
    }
    return false;
}

bool OwnWords::allow(std::size_t at, Found& found, const Lexicon::Entry*& entry) {
    if (lexicon_ == nullptr) return true;
    look_from(at, at + found.length);
    const Found::Name& name = found.name;
    for (const OwnWord& word : words_) {
        if (word.at >= at + found.length) break;
        if (is_part_of_word(word)) continue;
        const bool is_name = word.at == at + name.at && word.match.length == name.length;
        if (!is_name) return false;
        entry = word.match.entry;
    }
    if (entry != nullptr && name.word_length > 0)
        found.words.replace(name.word_at, name.word_length, entry->spoken);
    return true;
}

}  // namespace kavi::everyday
