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

struct Place {
    std::size_t offset;
    std::size_t length;
};

// What few words have.
struct Markup {
    std::string breaktime;
    std::vector<std::pair<std::string, std::string>> attributes;
};

struct Word {
    std::size_t begin;   // in the plain form of the sentence, in bytes
    std::size_t length;  // there,
    std::size_t after;   // and of what is after it
    Place source;
    int pause;
    std::vector<int> marks;
    std::unique_ptr<Markup> markup;  // null: none
};

struct Run {
    Place source;
    std::string rule;
    std::string reading;
};

struct Sentence {
    Sentence() = default;

    // A copy of what is read from a text, of which `text` is what is there from `text_begin` on.
    // `form` is written anew.
    Sentence(const HostSentence& sentence, std::string_view text, bool wants_runs, PlainForm& form,
             CodePoints& code_points, std::size_t text_begin = 0);

    Place source;
    std::string normalized;
    std::string speakable;
    std::string plain;
    std::size_t before = 0;   // of that, what is before the first word, in bytes
    std::vector<Word> words;  // the first is the head
    std::vector<Run> runs;
    bool ends_sentence = true;
};

struct Finding {
    kavi::Finding finding;
    Place source;
    std::size_t sentence;
};

struct Result {
    pybind11::str text;
    std::vector<std::shared_ptr<Sentence>> sentences;
    std::vector<Finding> findings;
    bool complete = true;
    std::size_t text_offset = 0;  // where the text begins
};

// A sentence with the text that it is of.
struct SentenceOfText {
    std::shared_ptr<Sentence> sentence;
    pybind11::str text;
    std::size_t text_offset = 0;
};

// As Utf8 has made them: a surrogate is three bytes. Other bytes that are no UTF-8, those of a
// character that was cut, are the surrogates that Python has for bytes.
pybind11::str shown(std::string_view text);

void add_results(pybind11::module_& module);

// For a class of which the package makes all objects: Python's __new__ would leave one without what
// is in it.
pybind11::custom_type_setup not_made_by_python();

}  // namespace kavi::python

#endif  // KAVI_PYTHON_RESULT_H
