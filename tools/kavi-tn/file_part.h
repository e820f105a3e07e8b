// Which bytes of a file are to be read, where a run reads one of several parts of its files.
#ifndef KAVI_TOOL_FILE_PART_H
#define KAVI_TOOL_FILE_PART_H

#include <cstddef>
#include <string>
#include <vector>

#include "options.h"

namespace kavi::tool {

// The texts that begin in these bytes, and where the first of them does.
struct FilePart {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t first_text = 0;  // its offset; not before `end`: there is none
    std::size_t origin = 0;      // where the input begins in its file: others count from there
    std::size_t number = 1;      // of that, from 1
};

// Cuts the files as if they were one. A text belongs to the part that its first byte is in, so that
// each is in one.
class FileParts {
  public:
    explicit FileParts(const Options& options) : options_(options) {}

    // The part of an open file, the `n`-th of the files from 0; the texts before it are counted.
    // Standard input begins where it is, and stays there: bytes of parts are read by offset. What
    // is wrong with it, or nothing; only files that stay as they are have parts.
    std::string find(int file, std::size_t n, FilePart& part);

  private:
    std::string measure();
    int find_first_text(int file, FilePart& part) const;

    const Options& options_;
    std::vector<std::size_t> sizes_;  // of the files, once they are known
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FILE_PART_H
