// Which rules may read what begins at an offset. This is told by its first byte and, after a word
// or a number, by what follows: for most of a text no rule is called.
#ifndef KAVI_EVERYDAY_DISPATCH_H
#define KAVI_EVERYDAY_DISPATCH_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kavi_compiler.h"
#include "rules.h"
#include "tts_everyday.h"

namespace kavi::everyday {

struct RuleRow {
    EverydayClass everyday_class;
    Rule rule;
};

// The rules in the order in which they are tried: a bit for each, the first in the lowest.
using RuleSet = std::uint32_t;

extern const RuleRow* const ALL_RULES;

// Takes the first rule out of a set that has one.
inline const RuleRow& take_first(RuleSet& rules) {
    const int first = lowest_bit(rules);
    rules &= rules - 1;
    return ALL_RULES[first];
}

// A run of letters or of digits, or one other byte; only of ASCII.
struct Run {
    std::size_t end;
    RuleSet rules;  // those that may read what begins with it
    bool is_open;   // more text could make it longer
};
Run run_at(std::string_view text, std::size_t at);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_DISPATCH_H
