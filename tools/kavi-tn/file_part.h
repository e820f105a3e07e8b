// Which bytes of a file are to be read, where a run reads one of several parts of its files.
#ifndef KAVI_TOOL_FILE_PART_H
#define KAVI_TOOL_FILE_PART_H

#include <cstddef>
#include <string>
#include <vector>

#include "options.h"

namespace kavi::tool {

// A range of an input, and the texts that begin in it. Offsets count from `origin`.
struct FilePart {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t first_text = 0;  // the offset of the first text; `end` or more when there is none
    std::size_t number = 1;      // of that text in the input, from 1
    std::size_t origin = 0;      // where the input begins in its file: standard input need not at 0
};

// Cuts the files as if they were one. A text belongs to the part that its first byte is in, so that
// each is in one.
class FileParts {
  public:
    explicit FileParts(const Options& options) : options_(options) {}

    // Finds the part of an open file, the `n`-th of the files from 0, and counts the texts before
    // it. Standard input begins at its current offset, which is not moved. Returns what is wrong,
    // or "": only a regular file has parts.
    std::string find(int file, std::size_t n, FilePart& part);

  private:
    std::string measure();
    int find_first_text(int file, FilePart& part) const;

    const Options& options_;
    std::vector<std::size_t> sizes_;  // of the files, once they are known
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_FILE_PART_H
