// The rows of kavi-tn's page for one line, for the playground.

#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "format.h"
#include "reader.h"

// The article elements of the sentences of a text, as line `line` of a page: NUL-terminated, freed
// by the caller with free(). `line` is 2 or more, since line 1 has the name of its input before it.
// Null when there is no memory.
extern "C" char* kavi_rows(kavi_reader* reader, const char* text, std::size_t length,
                           std::size_t line) {
    using namespace kavi;
    const std::unique_ptr<tool::Format> format = tool::make_html_format();
    tool::Location location = {"", 1, line, 0, {text, length}};
    std::vector<Diagnostic> diagnostics;
    std::string rows;
    reader->host.read(
        location.text,
        [&](const HostSentence& sentence) {
            ++location.sentence;
            format->write(location, sentence, diagnostics, rows);
            diagnostics.clear();
            return true;
        },
        [&](const Diagnostic& diagnostic) {
            diagnostics.push_back(diagnostic);
            return true;
        });
    format->end_text(location, diagnostics, rows);
    auto* copy = static_cast<char*>(std::malloc(rows.size() + 1));
    if (copy != nullptr) std::memcpy(copy, rows.c_str(), rows.size() + 1);
    return copy;
}
