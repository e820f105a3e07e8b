// How sentences are written.
#ifndef KAVI_TOOL_FORMAT_H
#define KAVI_TOOL_FORMAT_H

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "options.h"
#include "tts_host.h"

namespace kavi::tool {

// Where a sentence comes from.
struct Place {
    std::string_view input;
    std::size_t input_number;    // from 1
    std::size_t line;            // the text's number in its input, from 1
    std::size_t sentence;        // its number in the text, from 1
    std::string_view text;       // all of it, or
    std::size_t text_begin = 0;  // what is there of it from here on

    std::string_view part(const TextRange& range) const {
        return text.substr(range.offset - std::min(range.offset, text_begin), range.length);
    }
};

// One more than are told.
constexpr std::size_t LOST_MAX = 21;

// Leaves the least `n` of a set.
inline void keep_least(std::size_t n, std::set<std::string>& names) {
    while (names.size() > n) names.erase(std::prev(names.end()));
}

class Format {
  public:
    virtual ~Format() = default;

    // Appends what is to be written for one sentence, in whole lines; `diagnostics` are those
    // before its end.
    virtual void write(const Place& place, const HostSentence& sentence,
                       const std::vector<Diagnostic>& diagnostics, std::string& out) = 0;

    // Appends what is to be written when a text has ended, whose last sentence was that of `place`;
    // `diagnostics` are those after that.
    virtual void end_text(const Place& /*place*/, const std::vector<Diagnostic>& /*diagnostics*/,
                          std::string& /*out*/) {}

    // What the format has no word for, in the sentences since the last call: the least by name, up
    // to LOST_MAX.
    virtual std::set<std::string> take_lost() { return {}; }
};

// One format object serves one thread.
std::unique_ptr<Format> make_format(const Options& options);

// The formats, each in a file of its own.
std::unique_ptr<Format> make_text_format(Stage stage);
std::unique_ptr<Format> make_json_format(const std::vector<Field>& fields);
std::unique_ptr<Format> make_html_format();
std::unique_ptr<Format> make_ssml_format(bool marks);

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FORMAT_H
