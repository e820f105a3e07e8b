// What a text was read as, kept in C++ until Python asks for it.
#ifndef KAVI_PYTHON_RESULT_H
#define KAVI_PYTHON_RESULT_H

#include <pybind11/pybind11.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "text.h"
#include "tts_host.h"
#include "tts_plain.h"

namespace kavi::python {

// A range of the text that was read, in code points.
struct Range {
    std::size_t offset;
    std::size_t length;
};

// The markup of a word. Few words have any.
struct Markup {
    std::string breaktime;
    std::vector<std::pair<std::string, std::string>> attributes;
};

struct Word {
    std::size_t begin;   // its offset in the plain form of the sentence, in bytes
    std::size_t length;  // its bytes there
    std::size_t after;   // the bytes there between it and the next word
    Range source;
    int pause;
    std::vector<int> marks;
    std::unique_ptr<Markup> markup;  // null: none
};

struct Run {
    Range source;
    std::string rule;
    std::string reading;
};

struct Sentence {
    Sentence() = default;

    // A copy of a sentence that was read from a text of which `text` begins at the offset
    // `text_begin`. `form` is overwritten.
    Sentence(const HostSentence& sentence, std::string_view text, bool wants_runs, PlainForm& form,
             CodePoints& code_points, std::size_t text_begin = 0);

    Range source;
    std::string normalized;
    std::string speakable;
    std::string plain;
    std::size_t before = 0;   // the bytes of the plain form before the first word
    std::vector<Word> words;  // the first is the head
    std::vector<Run> runs;
    bool ends_sentence = true;
};

struct Finding {
    kavi::Finding finding;
    Range source;
    std::size_t sentence;
};

struct Result {
    pybind11::str text;
    std::vector<std::shared_ptr<Sentence>> sentences;
    std::vector<Finding> findings;
    bool complete = true;
    std::size_t text_offset = 0;  // of the begin of the text in its stream, in code points
};

// A sentence and the text that it was read from.
struct SentenceOfText {
    std::shared_ptr<Sentence> sentence;
    pybind11::str text;
    std::size_t text_offset = 0;
};

// A str of bytes that came from Utf8, in which a lone surrogate has three bytes. Other bytes that
// are not UTF-8, those of a character that was cut, become surrogates, as by "surrogateescape".
pybind11::str shown(std::string_view text);

void add_results(pybind11::module_& module);

// For a class whose objects only the package makes: __new__ raises TypeError, since it would leave
// the C++ object out.
pybind11::custom_type_setup not_made_by_python();

}  // namespace kavi::python

#endif  // KAVI_PYTHON_RESULT_H
