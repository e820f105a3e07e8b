// Fractions, which numbers may have after them.
#ifndef KAVI_EVERYDAY_FRACTIONS_H
#define KAVI_EVERYDAY_FRACTIONS_H

#include "rules.h"

namespace kavi::everyday {

// The words for the sign of a fraction so far on, "½", and its length; null for none.
const char* fraction_sign_at(const Place& place, std::size_t ahead, std::size_t& length);

// A fraction, by itself or after a whole number, that begins with the digits at a place.
bool read_fraction(const Place& place, Found& found);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_FRACTIONS_H
