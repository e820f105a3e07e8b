#include "result.h"

#include <pybind11/stl.h>

#include "tts_explain.h"
#include "tts_names.h"

namespace kavi::python {

namespace py = pybind11;

namespace {

Place place_of(const TextRange& range, CodePoints& code_points) {
    const std::size_t begin = code_points.at(range.offset);
    return {begin, code_points.at(range.offset + range.length) - begin};
}

// A type of kavi/_types.py; looked up once.
const py::object& python_type(const char* name) {
    static py::dict& types = *new py::dict(py::module_::import("kavi._types").attr("__dict__"));
    static auto& found = *new std::vector<std::pair<const char*, py::object>>();
    for (const auto& [known, type] : found) {
        if (known == name) return type;
    }
    found.reserve(16);  // what was handed out stays where it is
    return found.emplace_back(name, types[name]).second;
}
constexpr const char* PAUSE = "Pause";
constexpr const char* MARK = "Mark";
constexpr const char* WORD = "Word";
constexpr const char* RUN = "Run";
constexpr const char* FINDING = "Finding";
constexpr const char* FINDING_CODE = "FindingCode";

// Bytes that are no UTF-8 are the surrogates that Python has for them.
py::str shown(std::string_view text) {
    PyObject* object =
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
    if (object == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::str>(object);
}

py::object word_of(const Word& word) {
    py::tuple marks(word.marks.size());
    for (std::size_t i = 0; i < word.marks.size(); ++i) marks[i] = python_type(MARK)(word.marks[i]);
    py::dict attributes;
    for (const auto& [name, value] : word.attributes) attributes[name] = shown(value);
    return python_type(WORD)(shown(word.text), word.source.offset, word.source.length,
                             python_type(PAUSE)(word.pause), marks, shown(word.breaktime),
                             attributes, shown(word.after));
}

py::tuple words_of(const SentenceOfText& of) {
    const std::vector<Word>& words = of.sentence->words;
    py::tuple all(words.size() - 1);
    for (std::size_t i = 1; i < words.size(); ++i) all[i - 1] = word_of(words[i]);
    return all;
}

py::tuple runs_of(const SentenceOfText& of) {
    const std::vector<Run>& runs = of.sentence->runs;
    py::tuple all(runs.size());
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const Run& run = runs[i];
        all[i] =
            python_type(RUN)(run.source.offset, run.source.length, run.rule, shown(run.reading));
    }
    return all;
}

py::tuple sentences_of(const Result& result) {
    py::tuple all(result.sentences.size());
    for (std::size_t i = 0; i < result.sentences.size(); ++i) {
        all[i] = SentenceOfText{result.sentences[i], result.text};
    }
    return all;
}

py::tuple findings_of(const Result& result) {
    py::tuple all(result.findings.size());
    for (std::size_t i = 0; i < result.findings.size(); ++i) {
        const Finding& finding = result.findings[i];
        all[i] = python_type(FINDING)(python_type(FINDING_CODE)(code_of(finding.finding)),
                                      describe(finding.finding), finding.source.offset,
                                      finding.source.length, finding.sentence);
    }
    return all;
}

Word word_of(const UtteranceSyllable& record, std::string_view after, const WordPlace& place,
             CodePoints& code_points) {
    Word word = {record.syllable != nullptr ? record.syllable : "",
                 std::string(after),
                 place_of(place.source, code_points),
                 record.pause_type,
                 {record.punc_arr, record.punc_arr + record.n_punc},
                 record.cssml_tag.breaktime,
                 {}};
    for (const auto& [name, value] : attributes(record.cssml_tag)) {
        if (*value != '\0') word.attributes.emplace_back(name, value);
    }
    return word;
}

}  // namespace

Sentence::Sentence(const HostSentence& sentence, std::string_view text, bool wants_runs,
                   PlainForm& form, CodePoints& code_points)
    : source(place_of(sentence.source, code_points)),
      normalized(sentence.normalized),
      speakable(sentence.speakable) {
    form.read(sentence, text);
    plain = form.all();
    before = form.before();
    const auto n_records = static_cast<std::size_t>(sentence.n_records);
    const WordPlace* const places = sentence.places.words();
    words.reserve(n_records);
    for (std::size_t i = 0; i < n_records; ++i) {
        words.push_back(word_of(sentence.records[i], i > 0 ? form.after(i) : std::string_view(),
                                places[i], code_points));
    }
    if (!wants_runs) return;
    explain(sentence, text, [&](const ExplainedRun& run) {
        runs.push_back(
            {place_of(run.source, code_points), std::string(run.rule), std::string(run.reading)});
    });
}

void add_results(py::module_& module) {
    py::class_<SentenceOfText>(module, "Sentence", "One sentence.")
        .def_property_readonly(
            "source",
            [](const SentenceOfText& of) {
                const Place place = of.sentence->source;
                return of.text[py::slice(static_cast<py::ssize_t>(place.offset),
                                         static_cast<py::ssize_t>(place.offset + place.length), 1)];
            })
        .def_property_readonly("offset",
                               [](const SentenceOfText& of) { return of.sentence->source.offset; })
        .def_property_readonly("length",
                               [](const SentenceOfText& of) { return of.sentence->source.length; })
        .def_property_readonly(
            "normalized", [](const SentenceOfText& of) { return shown(of.sentence->normalized); })
        .def_property_readonly(
            "speakable", [](const SentenceOfText& of) { return shown(of.sentence->speakable); })
        .def_property_readonly("plain",
                               [](const SentenceOfText& of) { return shown(of.sentence->plain); })
        .def_property_readonly("before",
                               [](const SentenceOfText& of) { return shown(of.sentence->before); })
        .def_property_readonly(
            "head", [](const SentenceOfText& of) { return word_of(of.sentence->words[0]); })
        .def_property_readonly("words", words_of)
        .def_property_readonly("runs", runs_of);
    py::class_<Result>(module, "Result", "What a text was read as.")
        .def_property_readonly("sentences", sentences_of)
        .def_property_readonly("findings", findings_of)
        .def_readonly("complete", &Result::complete);
}

}  // namespace kavi::python
