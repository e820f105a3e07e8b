// The module kavi._kavi.

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "kavi_version.h"
#include "reader.h"
#include "result.h"
#include "stream.h"
#include "tts_names.h"

namespace py = pybind11;

namespace {

// Pauses from the least, marks from 0, codes of findings, classes of everyday English: in their
// order.
py::tuple names() {
    py::list pauses;
    py::list marks;
    py::list findings;
    py::list classes;
    for (int i = kavi::PAUSE_SYL_FE; i <= kavi::PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE; ++i) {
        pauses.append(kavi::pause_name(static_cast<kavi::PAUSE_type>(i)));
    }
    for (int i = kavi::PUNC_NULL_FE; i <= kavi::POIE_FE; ++i) {
        marks.append(kavi::punctuation_name(static_cast<kavi::PUNC_type>(i)));
    }
    for (int i = 0; i < kavi::FINDINGS; ++i) {
        findings.append(kavi::code_of(static_cast<kavi::Finding>(i)));
    }
    for (int i = 0; i < kavi::EVERYDAY_CLASSES; ++i) {
        classes.append(kavi::name_of(static_cast<kavi::EverydayClass>(i)));
    }
    return py::make_tuple(pauses, marks, findings, classes);
}

}  // namespace

PYBIND11_MODULE(_kavi, module) {
    module.attr("version") = KAVI_VERSION;
    module.attr("readings_version") = kavi::READINGS_VERSION;
    module.def("names", names);
    kavi::python::add_results(module);
    kavi::python::add_reader(module);
    kavi::python::add_stream(module);
}
