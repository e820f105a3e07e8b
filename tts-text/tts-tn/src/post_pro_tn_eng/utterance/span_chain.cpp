#include "span_chain.h"

#include <cstring>

#include "TtsString.h"

namespace kavi::tn {

namespace {

template <int Size>
bool join(char (&list)[Size], std::string_view field) {
    return safe_strncat(list, field.data(), static_cast<int>(field.size()), Size) == 0;
}

}  // namespace

bool SpanChain::assign(const char* names, const char* values) {
    names_[0] = values_[0] = '\0';
    if (!join(names_, names) || !join(values_, values)) return false;
    work_out_markup();
    return true;
}

bool SpanChain::extend(const SpanChain* outer, std::string_view name, std::string_view value) {
    names_[0] = values_[0] = '\0';
    if (outer != nullptr) {
        std::memcpy(names_, outer->names_, SIZE);
        std::memcpy(values_, outer->values_, SIZE);
        if (!join(names_, "\t") || !join(values_, "\t")) return false;
    }
    if (!join(names_, name) || !join(values_, value)) return false;
    work_out_markup();
    return true;
}

void SpanChain::work_out_markup() {
    markup_ = {};
    static_cast<void>(set_attributes(markup_, names_, values_));
}

}  // namespace kavi::tn
