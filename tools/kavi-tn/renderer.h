// Rendering: a block of texts to the output for it.
#ifndef KAVI_TOOL_RENDERER_H
#define KAVI_TOOL_RENDERER_H

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "block_reader.h"
#include "finding_text.h"
#include "findings_report.h"
#include "format.h"

namespace kavi::tool {

// The result of a block, or of a piece of it.
struct Rendered {
    std::string output;  // whole lines
    std::vector<FindingMessage> findings;
    std::size_t bytes = 0;       // of the block, that it was made from
    std::size_t texts = 0;       // that ended in it
    bool all_read = true;        // nothing was passed over, and the input could be read
    std::set<std::string> lost;  // as of Format::take_lost
    std::string notice;          // a line that warns that the input seems to be binary
    std::string failure;         // a line why the input could not be read
};

// One renderer serves one thread. The result depends on the block alone.
class Renderer {
  public:
    using Take = std::function<void(Rendered)>;

    // `everyday` rewrites the texts; null: they are read as they are. It stays the caller's.
    Renderer(const Options& options, const Everyday* everyday);

    // Calls `take` with the pieces of the result in order, one for a block of ordinary size.
    void render(const Block& block, const Take& take);

  private:
    template <typename After>
    void render_text(Location location, After after);
    void hand_over_if_large(std::size_t end, const Take& take);

    char delimiter_;
    bool writes_findings_;
    std::string shown_input_;  // the block's, as messages name it
    Rendered piece_;           // being made
    std::size_t taken_ = 0;    // bytes of the block that the pieces before it were made from
    TtsHost host_;
    std::unique_ptr<Format> format_;
    std::vector<Diagnostic> diagnostics_;  // of the sentence to come
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_RENDERER_H
