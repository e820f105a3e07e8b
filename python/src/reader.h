// kavi._kavi.Reader: the host layer with its settings.
#ifndef KAVI_PYTHON_READER_H
#define KAVI_PYTHON_READER_H

#include <pybind11/pybind11.h>

#include <atomic>
#include <string>

#include "result.h"
#include "tts_everyday.h"

namespace kavi::python {

class Reader {
  public:
    // Throws std::invalid_argument for a bad line of the lexicon.
    Reader(std::size_t capacity, const std::string& lexicon_name, const pybind11::bytes& lexicon,
           unsigned everyday, bool american_dates);

    pybind11::str normalize(const pybind11::str& text);
    pybind11::list normalize_batch(const pybind11::list& texts);
    Result read(const pybind11::str& text, bool rules);
    pybind11::list read_batch(const pybind11::list& texts, bool rules);

    // For streams, which read as this reader does and do not outlive it.
    std::size_t capacity() const { return capacity_; }
    const TextRewriter* rewriter() const { return rewriter_; }

  private:
    class BusyGuard;
    class Signals;

    // Appends what is spoken for the text; false when the capacity does not hold it.
    bool append_plain(std::string_view text, std::string& spoken);
    void read_into(Result& result, const Utf8& text, bool rules, Signals& signals);

    std::size_t capacity_;
    TtsHost host_;
    PlainForm plain_;  // of the last sentence
    Lexicon lexicon_;
    Everyday everyday_;
    const TextRewriter* rewriter_ = nullptr;  // everyday_, or null
    std::atomic<bool> is_reading_ = false;
};

void add_reader(pybind11::module_& module);

}  // namespace kavi::python

#endif  // KAVI_PYTHON_READER_H
