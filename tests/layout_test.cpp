// What programs linked with the shared libraries of version 0.1 have compiled in: the layout of the
// records and of what handlers are given, for pointers of eight bytes. Another layout is another
// minor version, which is part of the libraries' names. It is compiled, not run.

#include <cstddef>

#include "ShareObj.h"
#include "kavi_version.h"
#include "post_pro_tn_eng.h"
#include "tts_host.h"

#if KAVI_VERSION_MAJOR == 0 && KAVI_VERSION_MINOR == 1 && defined(__LP64__)

namespace kavi {

static_assert(sizeof(CssmlTag) == 162 && offsetof(CssmlTag, quill_effect) == 140);
static_assert(sizeof(UtteranceSyllable) == 296);
static_assert(offsetof(UtteranceSyllable, pause_type) == 12);
static_assert(offsetof(UtteranceSyllable, pause_type_tn) == 24);
static_assert(offsetof(UtteranceSyllable, zhuyin) == 72);
static_assert(offsetof(UtteranceSyllable, punc_arr) == 88);
static_assert(offsetof(UtteranceSyllable, cssml_tag) == 128);
static_assert(sizeof(Section) == 520 && offsetof(Section, m_pnext) == 504);

static_assert(sizeof(HostSentence) == 80);
static_assert(sizeof(Diagnostic) == 24 && offsetof(Diagnostic, length) == 16);

}  // namespace kavi

#endif
