#include "tts_findings.h"

namespace kavi {

namespace {

struct Row {
    Finding finding;
    const char* code;
    const char* description;
};

constexpr Row ROWS[] = {
    {Finding::stray_closing_tag, "stray-closing-tag",
     "this closing tag closes nothing; it is left out"},
    {Finding::mismatched_closing_tag, "mismatched-closing-tag",
     "this closing tag is of another kind than the innermost open one; it is left out"},
    {Finding::too_many_open_tags, "too-many-open-tags",
     "ten tags are open here; this one is left out with its closing tag"},
    {Finding::too_much_open_markup, "too-much-open-markup",
     "more than 199 characters of names or values are open; it is left out with its closing tag"},
    {Finding::tag_too_long, "tag-too-long", "this tag is too long to be read as one"},
    {Finding::tag_inside_tag, "tag-inside-tag",
     "this tag stands inside the beginning of another; a blank is read in its place"},
    {Finding::tag_never_closed, "tag-never-closed", "this tag has no \">\"; it is read as text"},
    {Finding::nul_byte, "nul-byte", "a NUL byte is read as a blank"},
    {Finding::not_spoken, "not-spoken", "bytes outside ASCII are not spoken"},
    {Finding::digits_not_read, "digits-not-read",
     "not all digits of this number are read (of a long one, four groups from the left)"},
    {Finding::tag_in_telephone_number, "tag-in-telephone-number",
     "this tag is passed over with the telephone number around it"},
    {Finding::reading_cut, "reading-cut", "the reading of this number is too long and was cut"},
    {Finding::arena_too_small, "arena-too-small",
     "the arena is too small for this sentence; it is passed over"},
    {Finding::span_never_closed, "span-never-closed",
     "nothing closes this tag; it applies to the end of the text"},
    {Finding::foreign_tag, "foreign-tag",
     "this tag is not of the markup language; it is read as text"},
    {Finding::mark_not_spoken, "mark-not-spoken",
     "no word is said for this mark; it is told once in a text"},
};

// The rows are indexed by finding.
constexpr bool are_in_order() {
    int index = 0;
    for (const Row& row : ROWS) {
        if (static_cast<int>(row.finding) != index++) return false;
    }
    return index == FINDINGS;
}
static_assert(are_in_order());

}  // namespace

const char* code_of(Finding finding) {
    return ROWS[static_cast<int>(finding)].code;
}

const char* describe(Finding finding) {
    return ROWS[static_cast<int>(finding)].description;
}

}  // namespace kavi
