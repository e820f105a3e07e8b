#include "stream.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

namespace kavi::python {

namespace py = pybind11;

Stream::Stream(const Reader& reader, bool rules)
    : rules_(rules),
      host_(reader.capacity()),
      stream_(
          reads_by(reader.rewriter()),
          [this](const HostSentence& sentence) { return add_sentence(sentence); },
          [this](const Diagnostic& found) { return add_finding(found); }) {}

TtsHost& Stream::reads_by(const TextRewriter* rewriter) {
    host_.rewrite_by(rewriter);
    return host_;
}

Result Stream::add(const py::str& piece) {
    if (has_ended_) throw std::invalid_argument("the text has ended");
    const Utf8 utf8(piece);
    note_tags(utf8.bytes());
    n_bytes_ += utf8.bytes().size();
    n_points_ += static_cast<std::size_t>(PyUnicode_GET_LENGTH(piece.ptr()));
    stream_.add(utf8.bytes());
    return take_result();
}

void Stream::note_tags(std::string_view piece) {
    CodePoints points(piece, false, n_bytes_, n_points_);
    for (std::size_t at = 0; (at = piece.find('<', at)) != std::string_view::npos; ++at) {
        tags_.emplace_back(n_bytes_ + at, points.at(n_bytes_ + at));
    }
}

Result Stream::end() {
    if (has_ended_) throw std::invalid_argument("the text has ended");
    has_ended_ = true;
    const bool is_complete = stream_.end();
    Result result = take_result();
    result.complete = is_complete;
    return result;
}

void Stream::forget() {
    stream_.forget();
    plain_ = {};
    tags_.clear();
    begin_byte_ = n_bytes_;
    begin_point_ = n_points_;
    has_ended_ = false;
}

Result Stream::take_result() {
    Result result = std::exchange(result_, {});
    result.text = shown(text_);
    text_.clear();
    return result;
}

// The text that is kept, from the begin of the next sentence on.
std::string_view Stream::unread() const {
    return stream_.text().substr(begin_byte_ - stream_.text_begin());
}

bool Stream::add_sentence(const HostSentence& sentence) {
    const std::size_t end = sentence.source.offset + sentence.source.length;
    CodePoints points(unread(), false, begin_byte_, begin_point_);
    if (result_.sentences.empty()) result_.text_offset = points.at(begin_byte_);
    result_.sentences.push_back(std::make_shared<Sentence>(sentence, stream_.text(), rules_, plain_,
                                                           points, stream_.text_begin()));
    text_ += unread().substr(0, end - begin_byte_);
    begin_point_ = points.at(end);
    begin_byte_ = end;
    return true;
}

bool Stream::add_finding(const Diagnostic& found) {
    if (found.offset < begin_byte_) {
        const auto tag = std::lower_bound(tags_.begin(), tags_.end(),
                                          std::make_pair(found.offset, std::size_t{0}));
        result_.findings.push_back(
            {found.finding, {tag->second, found.length}, result_.sentences.size()});
        return true;
    }
    CodePoints points(unread(), false, begin_byte_, begin_point_);
    const std::size_t begin = points.at(found.offset);
    const std::size_t end = points.at(found.offset + found.length);
    result_.findings.push_back({found.finding, {begin, end - begin}, result_.sentences.size()});
    return true;
}

void add_stream(py::module_& module) {
    module.def(
        "stream",
        [](const Reader& reader, bool rules) { return std::make_unique<Stream>(reader, rules); },
        py::keep_alive<0, 1>());
    py::class_<Stream>(module, "Stream", not_made_by_python())
        .def("add", &Stream::add)
        .def("end", &Stream::end)
        .def("forget", &Stream::forget);
}

}  // namespace kavi::python
