#include "reader.h"

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kavi::python {

namespace py = pybind11;

namespace {

// Shorter texts are read in less time than the interpreter lock takes to change hands.
constexpr std::size_t LONG = 4096;

// Words are ASCII, except what attributes and lexicons bring in; what is not UTF-8 is U+FFFD.
py::str python_text(std::string_view text) {
    PyObject* object =
        PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace");
    if (object == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::str>(object);
}

std::vector<Utf8> utf8_of(const py::list& texts) {
    std::vector<Utf8> all;
    all.reserve(texts.size());
    for (const py::handle text : texts) {
        if (!PyUnicode_Check(text.ptr())) throw py::type_error("a text is not a str");
        all.emplace_back(py::reinterpret_borrow<py::str>(text));
    }
    return all;
}

[[noreturn]] void fail_for_capacity() {
    PyErr_SetString(PyExc_MemoryError, "the capacity does not hold what this text is read as");
    throw py::error_already_set();
}

}  // namespace

// Lets Python handle signals while a long text is read without the interpreter lock.
class Reader::Signals {
  public:
    // To be called after each sentence. Throws what a signal handler has raised.
    void check() {
        constexpr unsigned SENTENCES = 16384;  // read in some ten milliseconds
        if (++n_sentences_ % SENTENCES != 0) return;
        const py::gil_scoped_acquire acquired;
        if (PyErr_CheckSignals() != 0) throw py::error_already_set();
    }

  private:
    unsigned n_sentences_ = 0;
};

// Marks the reader as busy during a call. Throws std::runtime_error when it is already.
class Reader::BusyGuard {
  public:
    explicit BusyGuard(Reader& reader) : is_reading_(reader.is_reading_) {
        if (is_reading_.exchange(true)) {
            throw std::runtime_error("another thread reads with this reader");
        }
    }
    ~BusyGuard() { is_reading_ = false; }
    BusyGuard(const BusyGuard&) = delete;
    BusyGuard& operator=(const BusyGuard&) = delete;

  private:
    std::atomic<bool>& is_reading_;
};

Reader::Reader(std::size_t capacity, const std::string& lexicon_name, const py::bytes& lexicon,
               unsigned everyday, bool american_dates)
    : capacity_(capacity), host_(capacity), everyday_(&lexicon_) {
    std::string error;
    if (!lexicon_.add(lexicon_name, std::string(lexicon), error))
        throw std::invalid_argument(error);
    everyday_ = Everyday(lexicon_.empty() ? nullptr : &lexicon_);
    for (int i = 0; i < EVERYDAY_CLASSES; ++i) {
        everyday_.set(static_cast<EverydayClass>(i),
                      (everyday >> static_cast<unsigned>(i) & 1U) != 0);
    }
    everyday_.set_american_dates(american_dates);
    if (!lexicon_.empty() || everyday != 0) rewriter_ = &everyday_;
    host_.rewrite_by(rewriter_);
}

bool Reader::append_plain(std::string_view text, std::string& spoken) {
    Signals signals;
    return host_.read(
        text,
        [&](const HostSentence& sentence) {
            plain_.read(sentence, text);
            spoken += plain_.all();
            signals.check();
            return true;
        },
        nullptr);
}

py::str Reader::normalize(const py::str& text) {
    const Utf8 utf8(text);
    std::string spoken;
    bool is_complete = false;
    {
        const BusyGuard busy(*this);
        if (utf8.bytes().size() < LONG) {
            is_complete = append_plain(utf8.bytes(), spoken);
        } else {
            const py::gil_scoped_release released;
            is_complete = append_plain(utf8.bytes(), spoken);
        }
    }
    if (!is_complete) fail_for_capacity();
    return python_text(spoken);
}

py::list Reader::normalize_batch(const py::list& texts) {
    const std::vector<Utf8> all = utf8_of(texts);
    std::string spoken;
    std::vector<std::size_t> ends;
    ends.reserve(all.size());
    bool is_complete = true;
    {
        const BusyGuard busy(*this);
        const py::gil_scoped_release released;
        for (const Utf8& text : all) {
            is_complete = append_plain(text.bytes(), spoken) && is_complete;
            ends.push_back(spoken.size());
        }
    }
    if (!is_complete) fail_for_capacity();
    py::list result(all.size());
    std::size_t begin = 0;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        result[i] = python_text(std::string_view(spoken).substr(begin, ends[i] - begin));
        begin = ends[i];
    }
    return result;
}

// Reads the text into its result, without the interpreter's lock.
void Reader::read_into(Result& result, const Utf8& text, bool rules, Signals& signals) {
    CodePoints of_sentences(text.bytes(), text.is_ascii());
    CodePoints of_findings(text.bytes(), text.is_ascii());
    result.complete = host_.read(
        text.bytes(),
        [&](const HostSentence& sentence) {
            result.sentences.push_back(
                std::make_shared<Sentence>(sentence, text.bytes(), rules, plain_, of_sentences));
            signals.check();
            return true;
        },
        [&](const Diagnostic& found) {
            const std::size_t begin = of_findings.at(found.offset);
            const std::size_t end = of_findings.at(found.offset + found.length);
            result.findings.push_back(
                {found.finding, {begin, end - begin}, result.sentences.size()});
            return true;
        });
}

Result Reader::read(const py::str& text, bool rules) {
    const Utf8 utf8(text);
    Result result;
    result.text = text;
    Signals signals;
    const BusyGuard busy(*this);
    const py::gil_scoped_release released;
    read_into(result, utf8, rules, signals);
    return result;
}

py::list Reader::read_batch(const py::list& texts, bool rules) {
    const std::vector<Utf8> all = utf8_of(texts);
    std::vector<Result> results(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) results[i].text = texts[i];
    {
        Signals signals;
        const BusyGuard busy(*this);
        const py::gil_scoped_release released;
        for (std::size_t i = 0; i < all.size(); ++i) read_into(results[i], all[i], rules, signals);
    }
    py::list list(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) list[i] = std::move(results[i]);
    return list;
}

void add_reader(py::module_& module) {
    module.def("reader", [](std::size_t capacity, const std::string& lexicon_name,
                            const py::bytes& lexicon, unsigned everyday, bool american_dates) {
        return std::make_unique<Reader>(capacity, lexicon_name, lexicon, everyday, american_dates);
    });
    py::class_<Reader>(module, "Reader", not_made_by_python())
        .def("normalize", &Reader::normalize)
        .def("normalize_batch", &Reader::normalize_batch)
        .def("read", &Reader::read)
        .def("read_batch", &Reader::read_batch);
}

}  // namespace kavi::python
