#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <functional>

#include "place.h"
#include "tts_lexicon.h"

namespace kavi {

namespace {

using everyday::in_lower_case;
using everyday::is_digit;
using everyday::is_of_word;

// Of the text in lower case; all of its bits count.
std::size_t hash_of(std::string_view text) {
    constexpr std::uint64_t BASIS = 14695981039346656037U;
    constexpr std::uint64_t PRIME = 1099511628211U;
    std::uint64_t hash = BASIS;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(everyday::to_lower(c))) * PRIME;
    }
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

// The word, number or mark that begins at `at`.
std::string_view token_at(std::string_view text, std::size_t at) {
    const everyday::Place place = {text, at};
    if (is_of_word(place.peek())) return place.part(0, place.run(is_of_word));
    if (is_digit(place.peek())) return place.digits();
    return place.part(0, 1);
}

// Whether a word or a number goes on from before a place to after it.
bool is_inside_token(std::string_view text, std::size_t at) {
    if (at == 0 || at >= text.size()) return false;
    return (is_of_word(text[at - 1]) && is_of_word(text[at])) ||
           (is_digit(text[at - 1]) && is_digit(text[at]));
}

bool is_words(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(),
                                        [](char c) { return everyday::is_letter(c) || c == ' '; });
}

// What is wrong with a line; null for nothing.
const char* fault_of(std::string_view line, std::string_view written, std::string_view spoken,
                     std::string_view third) {
    if (line.find('\t') == std::string_view::npos) return "no tab after what is written";
    if (written.empty()) return "nothing is written before the tab";
    if (!utf8::is_valid(line.begin(), line.end())) return "not UTF-8";
    if (written.find('<') != std::string_view::npos)
        return "\"<\" begins markup, which is not rewritten";
    if (!is_words(spoken)) return "what is spoken must be words of the letters a to z";
    if (!third.empty() && third != "any case")
        return "after the second tab stands \"any case\" or nothing";
    return nullptr;
}

}  // namespace

bool Lexicon::add(const std::string& file, std::string_view bytes, std::string& error) {
    constexpr std::size_t BYTES_OF_LINE = 24;
    file_ = file;
    for (auto* map : {&exact_, &any_case_}) map->reserve(bytes.size() / BYTES_OF_LINE);
    lengths_.reserve(bytes.size() / BYTES_OF_LINE);
    std::size_t number = 0;
    while (!bytes.empty()) {
        std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        ++number;
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line[0] == '#') continue;
        const std::string_view written = line.substr(0, line.find('\t'));
        std::string_view rest = line.substr(std::min(written.size() + 1, line.size()));
        const std::string_view spoken = rest.substr(0, rest.find('\t'));
        const std::string_view third = rest.substr(std::min(spoken.size() + 1, rest.size()));
        const char* fault = fault_of(line, written, spoken, third);
        const bool any_case = !third.empty();
        std::string key = any_case ? in_lower_case(written) : std::string(written);
        const bool is_known = (any_case ? any_case_ : exact_).count(key) > 0;
        if (fault == nullptr && is_known) fault = "written in an earlier line too";
        if (fault != nullptr) {
            error = file + ":" + std::to_string(number) + ": " + fault;
            return false;
        }
        entries_.push_back({std::move(key), std::string(spoken), any_case, number});
        index(entries_.size() - 1);
    }
    make_filter();
    return true;
}

void Lexicon::index(std::size_t entry) {
    const std::string& written = entries_[entry].written;
    (entries_[entry].any_case ? any_case_ : exact_).emplace(written, entry);
    const std::string first = in_lower_case(token_at(written, 0));
    std::vector<std::size_t>& lengths = lengths_[first];
    const auto place =
        std::lower_bound(lengths.begin(), lengths.end(), written.size(), std::greater<>());
    if (place == lengths.end() || *place != written.size()) lengths.insert(place, written.size());
}

void Lexicon::make_filter() {
    constexpr std::size_t BITS_OF_EACH = 16;
    std::size_t bits = BITS_OF_EACH;
    while (bits < BITS_OF_EACH * lengths_.size()) bits *= 2;
    filter_.assign(bits, false);
    for (const auto& [first, lengths] : lengths_) filter_[hash_of(first) & (bits - 1)] = true;
}

const Lexicon::Entry* Lexicon::find(std::string_view text, std::size_t at) const {
    const std::string_view first = token_at(text, at);
    if (filter_.empty() || !filter_[hash_of(first) & (filter_.size() - 1)]) return nullptr;
    const auto lengths = lengths_.find(in_lower_case(first));
    if (lengths == lengths_.end()) return nullptr;
    for (const std::size_t length : lengths->second) {
        if (at + length > text.size() || is_inside_token(text, at + length)) continue;
        const std::string here(text.substr(at, length));
        if (const auto found = exact_.find(here); found != exact_.end()) {
            return &entries_[found->second];
        }
        if (const auto found = any_case_.find(in_lower_case(here)); found != any_case_.end()) {
            return &entries_[found->second];
        }
    }
    return nullptr;
}

}  // namespace kavi
