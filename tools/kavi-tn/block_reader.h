// The input in blocks of whole texts.
#ifndef KAVI_TOOL_BLOCK_READER_H
#define KAVI_TOOL_BLOCK_READER_H

#include <memory>
#include <string>

#include "file_part.h"
#include "long_text.h"
#include "options.h"

namespace kavi::tool {

struct Block {
    std::string input;       // the name that messages and records give
    std::size_t number = 0;  // of the input, from 1
    std::size_t first = 1;   // the number of the first text in its input, from 1
    std::string bytes;       // whole texts, each but perhaps the last with its delimiter
    std::unique_ptr<LongText> long_text;  // or null; then one text without its delimiter, no bytes
    std::string notice;                   // a warning about the input, such as that it is binary
    std::string failure;                  // why the input could not be read to its end
};

// Reads all inputs in order. What has been read is handed out as soon as it holds a whole text, so
// that a terminal or a pipe gets its output at once. A text longer than a block makes a larger
// block, and one of more than a megabyte a LongText.
class BlockReader {
  public:
    explicit BlockReader(const Options& options);
    ~BlockReader();
    BlockReader(const BlockReader&) = delete;
    BlockReader& operator=(const BlockReader&) = delete;

    // The next block; false at the end of the last input.
    bool next(Block& block);

  private:
    bool next_of_file(Block& block);
    bool look(Block& block);
    bool cut_after_last_text(std::string& bytes, std::size_t searched);
    bool begin_long_text(Block& block);
    bool read_long_text(Block& block);
    bool read_more(std::string& bytes);
    void begin_part();
    std::size_t end_of_part(const char* bytes, std::size_t n) const;
    void begin_input(const std::string& name);
    void open(const std::string& name);
    void close();

    const Options& options_;
    bool text_pending_;
    std::size_t next_file_ = 0;
    std::size_t input_number_ = 0;
    std::string name_;
    int file_ = -1;
    bool is_new_ = false;  // too little of it has been read to know what it is
    std::string failure_;
    FileParts parts_;
    FilePart part_;
    std::size_t at_ = 0;               // the next byte of the file, where only a part of it is read
    std::size_t number_ = 1;           // of the next text
    std::string carry_;                // what was read after the last delimiter
    bool has_temporary_files_ = true;  // as far as is known
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_BLOCK_READER_H
