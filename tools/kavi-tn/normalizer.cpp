#include "normalizer.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <istream>
#include <ostream>

#include "word_table.h"

namespace kavi::tool {

void Normalizer::read_text(const std::string& name, std::string_view text, std::size_t line) {
    const bool all_read = host_.read(
        text, [this](const HostSentence& sentence) { write(sentence); },
        [&](const Diagnostic& diagnostic) {
            messages_ << name << ':' << line << ':' << diagnostic.offset + 1 << ": "
                      << describe(diagnostic.finding) << '\n';
        });
    if (!all_read) succeeded_ = false;
}

void Normalizer::read_stream(const std::string& name, std::istream& in) {
    std::string text;
    for (std::size_t line = 1; std::getline(in, text); ++line) read_text(name, text, line);
    if (in.bad()) fail(name + ": cannot be read to its end: " + std::strerror(errno));
}

void Normalizer::read_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    // Opening a directory succeeds; reading it is what fails.
    if (!file || (file.peek() == std::ifstream::traits_type::eof() && file.bad())) {
        fail(path + ": cannot be read: " + std::strerror(errno));
        return;
    }
    file.clear();
    read_stream(path, file);
}

void Normalizer::write(const HostSentence& sentence) {
    if (stage_ == Stage::words) {
        write_word_table(out_, sentence);
    } else {
        out_ << sentence.speakable << '\n';
    }
    if (!out_ && succeeded_) fail(std::string("cannot write: ") + std::strerror(errno));
}

void Normalizer::fail(const std::string& message) {
    messages_ << "kavi-tn: " << message << '\n';
    succeeded_ = false;
}

}  // namespace kavi::tool
