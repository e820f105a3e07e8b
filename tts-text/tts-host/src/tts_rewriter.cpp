#include "tts_rewriter.h"

#include <algorithm>

namespace kavi {

const Rewriting* RewrittenText::first_from(std::size_t at) const {
    const auto found = std::upper_bound(
        rewritings.begin(), rewritings.end(), at,
        [](std::size_t place, const Rewriting& r) { return place < r.at + r.length; });
    return found != rewritings.end() ? &*found : nullptr;
}

std::size_t RewrittenText::begin_of(std::size_t at) const {
    const Rewriting* r = first_from(at);
    if (r != nullptr && at >= r->at) return r->source.offset;
    if (r != nullptr) return r->source.offset - (r->at - at);
    if (rewritings.empty()) return at;
    const Rewriting& last = rewritings.back();
    return last.source.offset + last.source.length + (at - last.at - last.length);
}

std::size_t RewrittenText::end_of(std::size_t at) const {
    const Rewriting* r = first_from(at);
    const bool is_inside = r != nullptr && at > r->at;
    return is_inside ? r->source.offset + r->source.length : begin_of(at);
}

}  // namespace kavi
