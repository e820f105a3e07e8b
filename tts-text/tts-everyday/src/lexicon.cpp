#include <utf8.h>

#include <algorithm>
#include <cstdint>

#include "cursor.h"
#include "tokens.h"
#include "tts_lexicon.h"

namespace kavi {

namespace {

using everyday::in_lower_case;
using everyday::token_at;

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

// The name of the node that comes after another by a token.
std::string node_name(std::uint32_t node, std::string_view token) {
    std::string name(reinterpret_cast<const char*>(&node), sizeof node);
    return name += token;
}

bool is_words(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(),
                                        [](char c) { return everyday::is_letter(c) || c == ' '; });
}

std::string_view without_blanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The next part of a line, up to the next such mark or to its end; it is taken from the line.
std::string_view take_part(std::string_view& line, char end) {
    const std::string_view part = line.substr(0, line.find(end));
    line.remove_prefix(std::min(part.size() + 1, line.size()));
    return part;
}

// What is wrong with the parts of a line; null for nothing.
const char* fault_of(std::string_view written, std::string_view spoken, std::string_view third) {
    static_assert(Lexicon::WRITTEN_MAX == 100 && Lexicon::SPOKEN_MAX == 200);
    if (written.empty()) return "nothing is written before the tab";
    if (!utf8::is_valid(written.begin(), written.end())) return "not UTF-8";
    if (written.find('<') != std::string_view::npos)
        return "\"<\" begins markup, which is not rewritten";
    if (written.size() > Lexicon::WRITTEN_MAX) return "what is written is longer than 100 bytes";
    if (!is_words(spoken)) return "what is spoken must be words of the letters a to z";
    if (spoken.size() > Lexicon::SPOKEN_MAX) return "what is spoken is longer than 200 letters";
    if (!third.empty() && third != "any case")
        return "after the second tab comes \"any case\" or nothing";
    return nullptr;
}

}  // namespace

bool Lexicon::Tree::add(std::string_view written, std::size_t entry) {
    std::uint32_t node = 0;
    for (std::size_t at = 0; at < written.size();) {
        const std::string_view token = token_at(written, at);
        const auto next = static_cast<std::uint32_t>(entries.size());
        const auto [place, is_new] = nodes.emplace(node_name(node, token), next);
        if (is_new) entries.push_back(NONE);
        node = place->second;
        at += token.size();
    }
    if (entries[node] != NONE) return false;
    entries[node] = entry;
    return true;
}

std::size_t Lexicon::Tree::find(std::string_view text, std::size_t at, bool any_case,
                                Match& match) const {
    const std::string_view here = text.substr(at, WRITTEN_MAX + everyday::CODE_POINT_BYTES);
    std::size_t found = NONE;
    std::uint32_t node = 0;
    for (std::size_t end = 0; end < here.size();) {
        const std::string_view token = token_at(here, end);
        if (!everyday::is_there(text, at + end + token.size())) match.reaches_end = true;
        if (end + token.size() > WRITTEN_MAX) break;
        const auto next = nodes.find(node_name(node, any_case ? in_lower_case(token) : token));
        if (next == nodes.end()) break;
        node = next->second;
        end += token.size();
        const std::size_t all = end + everyday::emoji_rest(text, token, at + end);
        if (!everyday::is_there(text, at + all)) match.reaches_end = true;
        if (entries[node] == NONE || everyday::is_inside_token(text, at + all)) continue;
        found = entries[node];
        match.length = all;
    }
    return found;
}

const char* Lexicon::add_line(std::string_view line, const std::shared_ptr<const std::string>& file,
                              std::size_t number) {
    if (line.find('\t') == std::string_view::npos) return "no tab after what is written";
    const std::string_view written = without_blanks(take_part(line, '\t'));
    const std::string_view spoken = without_blanks(take_part(line, '\t'));
    const std::string_view third = without_blanks(line);
    if (const char* fault = fault_of(written, spoken, third)) return fault;
    const bool is_new = third.empty() ? exact_.add(written, entries_.size())
                                      : any_case_.add(in_lower_case(written), entries_.size());
    if (!is_new) return "written in an earlier line too";
    entries_.push_back({std::string(spoken), file, number});
    hashes_.push_back(hash_of(token_at(written, 0)));
    return nullptr;
}

bool Lexicon::add(const std::string& file, std::string_view bytes, std::string& error) {
    constexpr std::string_view BYTE_ORDER_MARK = "\xef\xbb\xbf";
    error.clear();
    if (bytes.substr(0, BYTE_ORDER_MARK.size()) == BYTE_ORDER_MARK)
        bytes.remove_prefix(BYTE_ORDER_MARK.size());
    const auto shared_file = std::make_shared<const std::string>(file);
    std::size_t n_faults = 0;
    for (std::size_t number = 1; !bytes.empty(); ++number) {
        std::string_view line = take_part(bytes, '\n');
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        line = without_blanks(line);
        if (line.empty() || line[0] == '#') continue;
        const char* fault = add_line(line, shared_file, number);
        if (fault == nullptr || ++n_faults > ERRORS_MAX) continue;
        error += (n_faults > 1 ? "\n" : "") + file + ":" + std::to_string(number) + ": " + fault;
    }
    if (n_faults > ERRORS_MAX) {
        error += "\n" + file + ": " + std::to_string(n_faults - ERRORS_MAX) + " more bad lines";
    }
    make_filter();
    return n_faults == 0;
}

void Lexicon::make_filter() {
    constexpr std::size_t BITS_OF_EACH = 16;
    std::size_t bits = BITS_OF_EACH;
    while (bits < BITS_OF_EACH * hashes_.size()) bits *= 2;
    filter_.assign(bits, false);
    for (const std::size_t hash : hashes_) filter_[hash & (bits - 1)] = true;
}

Lexicon::Match Lexicon::find(std::string_view text, std::size_t at) const {
    if (filter_.empty()) return {};
    const std::string_view first = token_at(text, at);
    Match exact;
    Match any_case;
    exact.reaches_end = first.size() <= WRITTEN_MAX && !everyday::is_there(text, at + first.size());
    if (!filter_[hash_of(first) & (filter_.size() - 1)]) return exact;
    const std::size_t exact_entry = exact_.find(text, at, false, exact);
    const std::size_t any_case_entry = any_case_.find(text, at, true, any_case);
    const bool is_exact = exact.length >= any_case.length;
    const std::size_t found = is_exact ? exact_entry : any_case_entry;
    Match match = is_exact ? exact : any_case;
    match.reaches_end = exact.reaches_end || any_case.reaches_end;
    if (found != NONE) match.entry = &entries_[found];
    return match;
}

}  // namespace kavi
