// What the engine is compared with.
#ifndef KAVI_BENCH_FLOOR_H
#define KAVI_BENCH_FLOOR_H

#include <string>

namespace kavi::bench {

// The least that the three calls promise for a text of at most 4,095 bytes, and nothing of English:
// its bytes are looked at once for the end of a sentence and once for words, each call writes its
// output, and the host is handed back the rest; each word has a record and two blocks of the arena,
// one of them cleared, and gives them back. How many records there were.
__attribute__((noinline)) int read_floor(const std::string& text);

}  // namespace kavi::bench

#endif  // KAVI_BENCH_FLOOR_H
