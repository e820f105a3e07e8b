// A block of texts to what is written for it.
#ifndef KAVI_TOOL_RENDERER_H
#define KAVI_TOOL_RENDERER_H

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "block_reader.h"
#include "findings_report.h"
#include "format.h"

namespace kavi::tool {

struct Rendered {
    std::string output;  // whole lines
    std::vector<FindingMessage> findings;
    std::size_t texts = 0;  // read
    bool all_read = true;
    std::set<std::string> lost;  // what the format has no word for
    std::string notice;          // a line about an input that seems to be no text
    std::string failure;         // a line about it, if the input could not be read
};

// One renderer serves one thread. The result depends on the block alone.
class Renderer {
  public:
    // `everyday` rewrites the texts; null: they are read as they are. It stays the caller's.
    Renderer(const Options& options, const Everyday* everyday);

    Rendered render(const Block& block);

  private:
    void render_text(const Place& text, Rendered& rendered);

    char delimiter_;
    TtsHost host_;
    std::unique_ptr<Format> format_;
    std::vector<Diagnostic> diagnostics_;  // of the sentence to come
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_RENDERER_H
