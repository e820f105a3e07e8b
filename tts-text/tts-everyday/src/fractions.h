// Fractions, which numbers may have after them.
#ifndef KAVI_EVERYDAY_FRACTIONS_H
#define KAVI_EVERYDAY_FRACTIONS_H

#include "rules.h"

namespace kavi::everyday {

// The row of the fraction sign at offset `ahead`, such as "½", or null.
const Row* fraction_sign_at(const Cursor& cursor, std::size_t ahead);

// A fraction, by itself or after a whole number, that begins with the digits at an offset.
bool read_fraction(const Cursor& cursor, Found& found);

// Whether a number is usual as the best of all marks, as in "9/10".
bool is_best_mark(std::string_view digits);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_FRACTIONS_H
