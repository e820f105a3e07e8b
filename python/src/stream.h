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

// Reads as a reader does, which outlives it. Each call answers with what can be told now; it holds
// the interpreter's lock, so that calls never meet.
class Stream {
  public:
    Stream(const Reader& reader, bool rules);

    // Throw std::invalid_argument after the end.
    Result add(const pybind11::str& piece);
    Result end();

    void forget();

  private:
    TtsHost& reads_by(const TextRewriter* rewriter);
    Result told();
    void note_tags(std::string_view piece);
    std::string_view unread() const;
    bool add_sentence(const HostSentence& sentence);
    bool add_finding(const Diagnostic& found);

    bool rules_;
    TtsHost host_;
    PlainForm plain_;
    Result result_;          // what is told by this call, without its text
    std::string told_text_;  // that
    // The offset of each "<", in bytes and in code points: tags that nothing closes are told at the
    // end, when the text is not there any more.
    std::vector<std::pair<std::size_t, std::size_t>> tags_;
    std::size_t n_bytes_ = 0;      // of all pieces
    std::size_t begin_byte_ = 0;   // where the next sentence begins,
    std::size_t begin_point_ = 0;  // in code points
    std::size_t n_points_ = 0;     // of all pieces
    bool has_ended_ = false;
    TtsStream stream_;
};

void add_stream(pybind11::module_& module);

}  // namespace kavi::python

#endif  // KAVI_PYTHON_STREAM_H
