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

// Where a sentence was read: its input, text and number. Numbers count from 1.
struct Location {
    std::string_view input;  // the name that messages give it
    std::size_t input_number;
    std::size_t line;  // the number of the text in its input
    std::size_t sentence;
    std::string_view text;       // of a stream, only what is kept of it,
    std::size_t text_begin = 0;  // which begins at this offset

    // The bytes of a range of the text.
    std::string_view part(const TextRange& range) const {
        return text.substr(range.offset - std::min(range.offset, text_begin), range.length);
    }
};

// One more than are reported, so that it is known whether there are others.
constexpr std::size_t LOST_MAX = 21;

// Leaves the first `n` names of a set, in their order.
inline void keep_least(std::size_t n, std::set<std::string>& names) {
    while (names.size() > n) names.erase(std::prev(names.end()));
}

class Format {
  public:
    virtual ~Format() = default;

    // Appends the output for one sentence, in whole lines. `diagnostics` are those since the last
    // sentence.
    virtual void write(const Location& location, const HostSentence& sentence,
                       const std::vector<Diagnostic>& diagnostics, std::string& out) = 0;

    // Appends the output for the end of a text. `location` is that of its last sentence,
    // `diagnostics` are those after it.
    virtual void end_text(const Location& /*location*/,
                          const std::vector<Diagnostic>& /*diagnostics*/, std::string& /*out*/) {}

    // The attributes, as in "poem=a", that the format cannot express and has left out since the
    // last call: the first LOST_MAX by name.
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
