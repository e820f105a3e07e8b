// Units of measurement after a number.

#include "rules.h"

namespace kavi::everyday {

namespace {

struct UnitRow {
    std::string_view written;
    const char* one;
    const char* many;
};

// The longest first of those that begin alike. Of one letter, they stand for a unit where no other
// word does.
// clang-format off
constexpr UnitRow UNITS[] = {
    {"km/h",  "kilometre per hour",   "kilometres per hour"},
    {"kph",   "kilometre per hour",   "kilometres per hour"},
    {"kmh",   "kilometre per hour",   "kilometres per hour"},
    {"mph",   "mile per hour",        "miles per hour"},
    {"m/s",   "metre per second",     "metres per second"},
    {"mpg",   "mile per gallon",      "miles per gallon"},
    {"km²", "square kilometre", "square kilometres"},
    {"m²", "square metre",     "square metres"},
    {"m³", "cubic metre",      "cubic metres"},
    {"cm³", "cubic centimetre", "cubic centimetres"},
    {"sq ft", "square foot",          "square feet"},
    {"fl oz", "fluid ounce",          "fluid ounces"},
    {"km",    "kilometre",            "kilometres"},
    {"cm",    "centimetre",           "centimetres"},
    {"mm",    "millimetre",           "millimetres"},
    {"nm",    "nanometre",            "nanometres"},
    {"µm", "micrometre",       "micrometres"},
    {"μm", "micrometre",       "micrometres"},
    {"µg", "microgram",        "micrograms"},
    {"μg", "microgram",        "micrograms"},
    {"m",     "metre",                "metres"},
    {"kg",    "kilogram",             "kilograms"},
    {"mg",    "milligram",            "milligrams"},
    {"g",     "gram",                 "grams"},
    {"lbs",   "pound",                "pounds"},
    {"lb",    "pound",                "pounds"},
    {"oz",    "ounce",                "ounces"},
    {"ft",    "foot",                 "feet"},
    {"mi",    "mile",                 "miles"},
    {"yds",   "yard",                 "yards"},
    {"yd",    "yard",                 "yards"},
    {"ml",    "millilitre",           "millilitres"},
    {"mL",    "millilitre",           "millilitres"},
    {"cl",    "centilitre",           "centilitres"},
    {"l",     "litre",                "litres"},
    {"L",     "litre",                "litres"},
    {"GHz",   "gigahertz",            "gigahertz"},
    {"MHz",   "megahertz",            "megahertz"},
    {"kHz",   "kilohertz",            "kilohertz"},
    {"Hz",    "hertz",                "hertz"},
    {"Mbps",  "megabit per second",   "megabits per second"},
    {"TB",    "terabyte",             "terabytes"},
    {"GB",    "gigabyte",             "gigabytes"},
    {"MB",    "megabyte",             "megabytes"},
    {"KB",    "kilobyte",             "kilobytes"},
    {"kB",    "kilobyte",             "kilobytes"},
    {"kWh",   "kilowatt hour",        "kilowatt hours"},
    {"MW",    "megawatt",             "megawatts"},
    {"kW",    "kilowatt",             "kilowatts"},
    {"W",     "watt",                 "watts"},
    {"V",     "volt",                 "volts"},
    {"hrs",   "hour",                 "hours"},
    {"hr",    "hour",                 "hours"},
    {"mins",  "minute",               "minutes"},
    {"min",   "minute",               "minutes"},
    {"secs",  "second",               "seconds"},
    {"sec",   "second",               "seconds"},
    {"ms",    "millisecond",          "milliseconds"},
    {"s",     "second",               "seconds"},
    {"h",     "hour",                 "hours"},
    {"tbsp",  "tablespoon",           "tablespoons"},
    {"tsp",   "teaspoon",             "teaspoons"},
    {"ha",    "hectare",              "hectares"},
    {"kcal",  "kilocalorie",          "kilocalories"},
    {"bpm",   "beat per minute",      "beats per minute"},
    {"ppm",   "part per million",     "parts per million"},
    {"ppb",   "part per billion",     "parts per billion"},
    {"pts",   "point",                "points"},
    {"dB",    "decibel",              "decibels"},
    {"keV",   "kilo electron volt",   "kilo electron volts"},
    {"MeV",   "mega electron volt",   "mega electron volts"},
    {"GeV",   "giga electron volt",   "giga electron volts"},
    {"TeV",   "tera electron volt",   "tera electron volts"},
    {"°C", "degree Celsius", "degrees Celsius"},
    {"° C", "degree Celsius",  "degrees Celsius"},
    {"°F", "degree Fahrenheit", "degrees Fahrenheit"},
    {"°",  "degree",           "degrees"},
};
// clang-format on

// "2h 10m": after hours, these are minutes.
bool is_after_hours(const Place& place) {
    return place.before() == ' ' && place.before(2) == 'h' && is_digit(place.before(3));
}

// "5'4\"": feet and inches.
bool read_height(const Place& place, Found& found) {
    const std::string_view feet = place.digits();
    const std::size_t mark = place.starts_with("′", feet.size()) ? 3 : 1;
    if (feet.size() != 1 || (mark == 1 && place.peek(1) != '\'')) return false;
    const std::string_view inches = place.digits(1 + mark);
    if (inches.empty() || inches.size() > 2) return false;
    const std::size_t end = 1 + mark + inches.size();
    const std::size_t end_mark = place.starts_with("″", end) ? 3 : 1;
    if (end_mark == 1 && place.peek(end) != '"') return false;
    say_cardinal(feet, found.words);
    say("foot", found.words);
    say_cardinal(inches, found.words);
    found.length = end + end_mark;
    return true;
}

}  // namespace

void read_unit(const Place& place, Found& found) {
    if (read_height(place, found)) return;
    const Number number = number_at(place, 0);
    std::size_t end = number.length;
    Number second;  // of a range
    const std::size_t dash = place.dash(end);
    if (dash > 0) second = number_at(place, end + dash);
    if (second.length > 0) end += dash + second.length;
    const std::size_t blank = place.peek(end) == ' ' || place.peek(end) == '-' ? 1 : 0;
    for (const UnitRow& row : UNITS) {
        if (!place.starts_with(row.written, end + blank)) continue;
        const std::size_t after = end + blank + row.written.size();
        if (place.is_joined(after)) continue;
        const bool may_be_plural = blank == 0 && number.fraction.empty();
        if (row.written == "s" && may_be_plural) continue;  // "the 5s"
        number.say(found.words);
        if (second.length > 0) {
            say("to", found.words);
            second.say(found.words);
        }
        const bool is_adjective = place.peek(end) == '-' || place.is_before_noun(after);
        const bool is_one = (number.is_one() && second.length == 0) || is_adjective;
        if (row.written == "m" && is_after_hours(place)) {
            say(number.is_one() ? "minute" : "minutes", found.words);
        } else {
            found.say_name(end + blank, row.written.size(), is_one ? row.one : row.many);
        }
        const bool has_stop = place.peek(after) == '.' && !place.may_end_sentence(after + 1);
        found.length = after + (has_stop ? 1 : 0);
        return;
    }
}

}  // namespace kavi::everyday
