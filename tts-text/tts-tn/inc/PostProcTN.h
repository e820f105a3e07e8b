// The open tags of a sentence that is being cut.
#ifndef KAVI_POST_PROC_TN_H
#define KAVI_POST_PROC_TN_H

namespace kavi {

// The spans that are open at one point of the scan. Entries 0 to begin_arr_len - 1 hold their
// opening tags, from "<" through ">" and NUL-terminated, outermost first.
struct SsmlTagArr {
    int begin_arr_len;
    char begin_tag_arr[10][200];
};

}  // namespace kavi

#endif  // KAVI_POST_PROC_TN_H
