// Units of measurement after a number.

#include "rules.h"
#include "spoken_numbers.h"

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
    {"km\xc2\xb2", "square kilometre", "square kilometres"},
    {"m\xc2\xb2", "square metre",     "square metres"},
    {"m\xc2\xb3", "cubic metre",      "cubic metres"},
    {"cm\xc2\xb3", "cubic centimetre", "cubic centimetres"},
    {"sq ft", "square foot",          "square feet"},
    {"fl oz", "fluid ounce",          "fluid ounces"},
    {"km",    "kilometre",            "kilometres"},
    {"cm",    "centimetre",           "centimetres"},
    {"mm",    "millimetre",           "millimetres"},
    {"nm",    "nanometre",            "nanometres"},
    {"m",     "metre",                "metres"},
    {"kg",    "kilogram",             "kilograms"},
    {"mg",    "milligram",            "milligrams"},
    {"g",     "gram",                 "grams"},
    {"lbs",   "pound",                "pounds"},
    {"lb",    "pound",                "pounds"},
    {"oz",    "ounce",                "ounces"},
    {"ft",    "foot",                 "feet"},
    {"mi",    "mile",                 "miles"},
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
    {"dB",    "decibel",              "decibels"},
    {"\xc2\xb0""C", "degree Celsius", "degrees Celsius"},
    {"\xc2\xb0 C", "degree Celsius",  "degrees Celsius"},
    {"\xc2\xb0""F", "degree Fahrenheit", "degrees Fahrenheit"},
    {"\xc2\xb0",  "degree",           "degrees"},
};
// clang-format on

}  // namespace

void read_unit(const Place& place, Found& found) {
    Number number = number_at(place.rest(0));
    std::size_t end = number.length;
    Number second;  // of a range
    const std::size_t dash = place.dash(end);
    if (dash > 0) second = number_at(place.rest(end + dash));
    if (second.length > 0) end += dash + second.length;
    const std::size_t blank = place.peek(end) == ' ' || place.peek(end) == '-' ? 1 : 0;
    for (const UnitRow& row : UNITS) {
        if (!place.starts_with(row.written, end + blank)) continue;
        const std::size_t after = end + blank + row.written.size();
        if (is_letter(place.peek(after)) || is_digit(place.peek(after))) continue;
        if (row.written == "s" && blank == 0) continue;  // a plural: "the 5s"
        number.say(found.words);
        if (second.length > 0) {
            say("to", found.words);
            second.say(found.words);
        }
        const bool is_adjective = place.peek(end) == '-';
        say((number.is_one() && second.length == 0) || is_adjective ? row.one : row.many,
            found.words);
        const bool has_stop = place.peek(after) == '.' && !place.may_end_sentence(after + 1);
        found.length = after + (has_stop ? 1 : 0);
        return;
    }
}

}  // namespace kavi::everyday
