#include "result.h"

#include <pybind11/stl.h>

#include <array>
#include <map>

#include "tts_explain.h"
#include "tts_names.h"

namespace kavi::python {

namespace py = pybind11;

namespace {

Range range_of(const TextRange& range, CodePoints& code_points) {
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
    found.reserve(16);  // references handed out stay valid
    return found.emplace_back(name, types[name]).second;
}
constexpr const char* PAUSE = "Pause";
constexpr const char* MARK = "Mark";
constexpr const char* WORD = "Word";
constexpr const char* RUN = "Run";
constexpr const char* FINDING = "Finding";
constexpr const char* FINDING_CODE = "FindingCode";

}  // namespace

py::str shown(std::string_view text) {
    const auto size = static_cast<Py_ssize_t>(text.size());
    PyObject* object = PyUnicode_DecodeUTF8(text.data(), size, "surrogatepass");
    if (object == nullptr) {
        PyErr_Clear();
        object = PyUnicode_DecodeUTF8(text.data(), size, "surrogateescape");
    }
    if (object == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::str>(object);
}

namespace {

// A member of an enumeration; looked up once. The values are -2 to 29.
py::object member_of(const char* type, int value) {
    constexpr int LEAST = -2;
    constexpr std::size_t MEMBERS = 32;
    static auto& found = *new std::map<const char*, std::array<py::object, MEMBERS>>();
    const auto index = static_cast<std::size_t>(value - LEAST);
    if (index >= MEMBERS) return python_type(type)(value);
    py::object& member = found[type][index];
    if (!member) member = python_type(type)(value);
    return member;
}

// A named tuple of these fields, without a call of its class.
template <typename... Fields>
py::object named_tuple(const char* type, const Fields&... fields) {
    auto* const made_by = reinterpret_cast<PyTypeObject*>(python_type(type).ptr());
    PyObject* const made = made_by->tp_alloc(made_by, sizeof...(fields));
    if (made == nullptr) throw py::error_already_set();
    Py_ssize_t index = 0;
    (PyTuple_SET_ITEM(made, index++, fields.inc_ref().ptr()), ...);
    return py::reinterpret_steal<py::object>(made);
}

py::tuple marks_of(const Word& word) {
    py::tuple marks(word.marks.size());
    for (std::size_t i = 0; i < word.marks.size(); ++i) marks[i] = member_of(MARK, word.marks[i]);
    return marks;
}

py::object word_of(const Word& word, std::string_view plain) {
    static const Markup none;
    const Markup& markup = word.markup ? *word.markup : none;
    py::dict attributes;
    for (const auto& [name, value] : markup.attributes) attributes[py::str(name)] = shown(value);
    return named_tuple(WORD, shown(plain.substr(word.begin, word.length)),
                       py::int_(word.source.offset), py::int_(word.source.length),
                       member_of(PAUSE, word.pause), marks_of(word), shown(markup.breaktime),
                       attributes, shown(plain.substr(word.begin + word.length, word.after)));
}

py::tuple words_of(const SentenceOfText& of) {
    const Sentence& sentence = *of.sentence;
    py::tuple all(sentence.words.size() - 1);
    for (std::size_t i = 1; i < sentence.words.size(); ++i) {
        all[i - 1] = word_of(sentence.words[i], sentence.plain);
    }
    return all;
}

py::object head_of(const SentenceOfText& of) {
    return word_of(of.sentence->words[0], of.sentence->plain);
}

// The text that the sentence was read from.
py::object source_of(const SentenceOfText& of) {
    const Range source = of.sentence->source;
    const auto begin = static_cast<py::ssize_t>(source.offset - of.text_offset);
    return of.text[py::slice(begin, begin + static_cast<py::ssize_t>(source.length), 1)];
}

py::str before_of(const SentenceOfText& of) {
    return shown(std::string_view(of.sentence->plain).substr(0, of.sentence->before));
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
        all[i] = SentenceOfText{result.sentences[i], result.text, result.text_offset};
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

std::unique_ptr<Markup> markup_of(const CssmlTag& tag) {
    if (tag.breaktime[0] == '\0' && !has_attributes(tag)) return nullptr;
    auto markup = std::make_unique<Markup>();
    markup->breaktime = tag.breaktime;
    for (const auto& [name, value] : attributes(tag)) {
        if (*value != '\0') markup->attributes.emplace_back(name, value);
    }
    return markup;
}

// ---- the state of a sentence or a result in Python's own types, and back: for pickling ----

py::tuple state_of(const SentenceOfText& of) {
    const Sentence& sentence = *of.sentence;
    return py::make_tuple(of.text, sentence.source.offset, sentence.source.length,
                          shown(sentence.normalized), shown(sentence.speakable),
                          shown(sentence.plain), before_of(of), head_of(of), words_of(of),
                          runs_of(of), sentence.ends_sentence, of.text_offset);
}

py::tuple state_of(const Result& result) {
    return py::make_tuple(result.text, sentences_of(result), findings_of(result), result.complete,
                          result.text_offset);
}

std::string bytes_of(const py::handle& text) {
    return std::string(Utf8(text.cast<py::str>()).bytes());
}

// A word at offset `begin` of the plain form.
Word word_from(const py::handle& object, std::size_t begin) {
    const auto fields = object.cast<py::tuple>();
    auto markup = std::make_unique<Markup>();
    markup->breaktime = bytes_of(fields[5]);
    for (const auto& [name, value] : fields[6].cast<py::dict>()) {
        markup->attributes.emplace_back(bytes_of(name), bytes_of(value));
    }
    return {begin,
            bytes_of(fields[0]).size(),
            bytes_of(fields[7]).size(),
            {fields[1].cast<std::size_t>(), fields[2].cast<std::size_t>()},
            fields[3].cast<int>(),
            fields[4].cast<std::vector<int>>(),
            std::move(markup)};
}

SentenceOfText sentence_from(const py::str& text, std::size_t offset, std::size_t length,
                             const py::str& normalized, const py::str& speakable,
                             const py::str& plain, const py::str& before, const py::tuple& head,
                             const py::tuple& words, const py::tuple& runs, bool ends_sentence,
                             std::size_t text_offset) {
    auto sentence = std::make_shared<Sentence>();
    sentence->source = {offset, length};
    sentence->normalized = bytes_of(normalized);
    sentence->speakable = bytes_of(speakable);
    sentence->plain = bytes_of(plain);
    sentence->before = bytes_of(before).size();
    sentence->words.push_back(word_from(head, 0));
    std::size_t begin = sentence->before;
    for (const py::handle word : words) {
        sentence->words.push_back(word_from(word, begin));
        begin += sentence->words.back().length + sentence->words.back().after;
    }
    if (begin != sentence->plain.size())
        throw py::value_error("the words are not those of the plain form");
    for (const py::handle object : runs) {
        const auto run = object.cast<py::tuple>();
        sentence->runs.push_back({{run[0].cast<std::size_t>(), run[1].cast<std::size_t>()},
                                  bytes_of(run[2]),
                                  bytes_of(run[3])});
    }
    sentence->ends_sentence = ends_sentence;
    return {sentence, text, text_offset};
}

kavi::Finding finding_of(const std::string& code) {
    for (int i = 0; i < FINDINGS; ++i) {
        if (code == code_of(static_cast<kavi::Finding>(i))) return static_cast<kavi::Finding>(i);
    }
    throw py::value_error("no such finding: " + code);
}

Result result_from(const py::str& text, const py::tuple& sentences, const py::tuple& findings,
                   bool complete, std::size_t text_offset) {
    Result result = {text, {}, {}, complete, text_offset};
    for (const py::handle sentence : sentences) {
        result.sentences.push_back(sentence.cast<const SentenceOfText&>().sentence);
    }
    for (const py::handle object : findings) {
        const auto finding = object.cast<py::tuple>();
        result.findings.push_back({finding_of(bytes_of(finding[0].attr("value"))),
                                   {finding[2].cast<std::size_t>(), finding[3].cast<std::size_t>()},
                                   finding[4].cast<std::size_t>()});
    }
    return result;
}

// Comparing, printing and pickling by the state. `made_by` is the function of the package that
// makes the object from its state.
template <typename Thing>
void add_state(py::class_<Thing>& type, const char* name, const char* made_by) {
    type.def(
        "__eq__", [](const Thing& a, const Thing& b) { return state_of(a).equal(state_of(b)); },
        py::is_operator());
    type.def("__reduce__", [made_by](const Thing& thing) {
        return py::make_tuple(py::module_::import("kavi").attr(made_by), state_of(thing));
    });
    type.def("__repr__", [name](const Thing& thing) {
        return py::str("<kavi.{} {!r}>").format(name, state_of(thing));
    });
}

}  // namespace

py::custom_type_setup not_made_by_python() {
    return py::custom_type_setup([](PyHeapTypeObject* type) {
        type->ht_type.tp_new = [](PyTypeObject* made, PyObject*, PyObject*) -> PyObject* {
            PyErr_Format(PyExc_TypeError, "%s is made by a reader alone", made->tp_name);
            return nullptr;
        };
    });
}

Sentence::Sentence(const HostSentence& sentence, std::string_view text, bool wants_runs,
                   PlainForm& form, CodePoints& code_points, std::size_t text_begin)
    : source(range_of(sentence.source, code_points)),
      normalized(sentence.normalized),
      speakable(sentence.speakable),
      ends_sentence(sentence.ends_sentence) {
    form.read(sentence, text, text_begin);
    plain = form.all();
    before = form.before().size();
    const auto n_records = static_cast<std::size_t>(sentence.n_records);
    const WordPlace* const places = sentence.places.words();
    words.reserve(n_records);
    std::size_t begin = before;
    for (std::size_t i = 0; i < n_records; ++i) {
        const UtteranceSyllable& record = sentence.records[i];
        const std::size_t length = i > 0 ? kavi::word_of(record).size() : 0;
        const std::size_t after = i > 0 ? form.after(i).size() : 0;
        words.push_back({begin,
                         length,
                         after,
                         range_of(places[i].source, code_points),
                         record.pause_type,
                         {record.punc_arr, record.punc_arr + record.n_punc},
                         markup_of(record.cssml_tag)});
        begin += length + after;
    }
    if (!wants_runs) return;
    explain(
        sentence, text,
        [&](const ExplainedRun& run) {
            runs.push_back({range_of(run.source, code_points), std::string(run.rule),
                            std::string(run.reading)});
        },
        text_begin);
}

void add_results(py::module_& module) {
    py::class_<SentenceOfText> sentence(module, "Sentence", "One sentence.", not_made_by_python());
    add_state(sentence, "Sentence", "_sentence");
    module.def("_sentence", sentence_from);
    sentence.def_property_readonly("source", source_of)
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
        .def_property_readonly("before", before_of)
        .def_property_readonly("head", head_of)
        .def_property_readonly("words", words_of)
        .def_property_readonly("ends_sentence",
                               [](const SentenceOfText& of) { return of.sentence->ends_sentence; })
        .def_property_readonly("runs", runs_of);
    py::class_<Result> result(module, "Result", "What a text was read as.", not_made_by_python());
    add_state(result, "Result", "_result");
    module.def("_result", result_from);
    result.def_property_readonly("sentences", sentences_of)
        .def_property_readonly("findings", findings_of)
        .def_readonly("complete", &Result::complete);
}

}  // namespace kavi::python
