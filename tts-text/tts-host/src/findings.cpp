#include "tts_findings.h"

namespace kavi {

const char* code_of(Finding finding) {
    switch (finding) {
        case Finding::stray_closing_tag: return "stray-closing-tag";
        case Finding::mismatched_closing_tag: return "mismatched-closing-tag";
        case Finding::too_many_open_tags: return "too-many-open-tags";
        case Finding::too_much_open_markup: return "too-much-open-markup";
        case Finding::tag_too_long: return "tag-too-long";
        case Finding::tag_inside_tag: return "tag-inside-tag";
        case Finding::tag_never_closed: return "tag-never-closed";
        case Finding::nul_byte: return "nul-byte";
        case Finding::digits_not_read: return "digits-not-read";
        case Finding::tag_in_telephone_number: return "tag-in-telephone-number";
        case Finding::reading_cut: return "reading-cut";
        case Finding::arena_too_small: break;
    }
    return "arena-too-small";
}

const char* describe(Finding finding) {
    switch (finding) {
        case Finding::stray_closing_tag: return "this closing tag closes nothing; it is left out";
        case Finding::mismatched_closing_tag:
            return "this closing tag is of another kind than the innermost open one; it is left "
                   "out";
        case Finding::too_many_open_tags:
            return "ten tags are open here; this one is left out with its closing tag";
        case Finding::too_much_open_markup:
            return "more than 199 characters of names or values are open; this tag is left out "
                   "with "
                   "its closing tag";
        case Finding::tag_too_long: return "this tag is too long to be read as one";
        case Finding::tag_inside_tag:
            return "this tag stands inside the beginning of another; a blank is read in its place";
        case Finding::tag_never_closed: return "this tag has no \">\"; it is read as text";
        case Finding::nul_byte: return "a NUL byte is read as a blank";
        case Finding::digits_not_read:
            return "not all digits of this number are read (of a long one, four groups from the "
                   "left)";
        case Finding::tag_in_telephone_number:
            return "this tag is passed over with the telephone number around it";
        case Finding::reading_cut: return "the reading of this number is too long and was cut";
        case Finding::arena_too_small: break;
    }
    return "the arena is too small for this sentence; it is passed over";
}

}  // namespace kavi
