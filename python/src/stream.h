// A text that is still being written, for Python.
#ifndef KAVI_PYTHON_STREAM_H
#define KAVI_PYTHON_STREAM_H

#include <pybind11/pybind11.h>

#include <string>
#include <utility>
#include <vector>

#include "reader.h"
#include "result.h"
#include "tts_stream.h"

namespace kavi::python {

// Reads as a reader does, which must outlive it. Each call returns what has become certain. Calls
// hold the interpreter lock, so they never overlap.
class Stream {
  public:
    Stream(const Reader& reader, bool rules);

    // Throw std::invalid_argument after the end.
    Result add(const pybind11::str& piece);
    Result end();

    void forget();

  private:
    TtsHost& reads_by(const TextRewriter* rewriter);
    Result take_result();
    void note_tags(std::string_view piece);
    std::string_view unread() const;
    bool add_sentence(const HostSentence& sentence);
    bool add_finding(const Diagnostic& found);

    bool rules_;
    TtsHost host_;
    PlainForm plain_;
    Result result_;     // of this call, without its text
    std::string text_;  // the text of that
    // The offset of each "<", in bytes and in code points: a tag that nothing closes is reported at
    // the end, when its text is no longer kept.
    std::vector<std::pair<std::size_t, std::size_t>> tags_;
    std::size_t n_bytes_ = 0;      // of all pieces
    std::size_t n_points_ = 0;     // of all pieces, in code points
    std::size_t begin_byte_ = 0;   // the offset of the next sentence
    std::size_t begin_point_ = 0;  // the same in code points
    bool has_ended_ = false;
    TtsStream stream_;
};

void add_stream(pybind11::module_& module);

}  // namespace kavi::python

#endif  // KAVI_PYTHON_STREAM_H
