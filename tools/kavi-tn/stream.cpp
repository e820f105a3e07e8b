#include "stream.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "finding_text.h"
#include "findings_report.h"
#include "format.h"
#include "output.h"
#include "readings.h"
#include "tts_stream.h"

namespace kavi::tool {

namespace {

// Writes what a stream hands over.
class Writer {
  public:
    explicit Writer(const Options& options)
        : format_(make_format(options)), location_{"standard input", 1, 1, 0, {}} {
        require(output_.open(""));
    }

    void write(const TtsStream& stream, const HostSentence& sentence) {
        locate(stream);
        ++location_.sentence;
        format_->write(location_, sentence, diagnostics_, lines_);
        diagnostics_.clear();
        require(output_.write(lines_));
        lines_.clear();
    }

    void write(const TtsStream& stream, const Diagnostic& found) {
        locate(stream);
        diagnostics_.push_back(found);
        const std::string message = describe(found, location_.part({found.offset, found.length}));
        write_messages(findings_.take(
            {{found.finding, text_line(found, location_.input, location_.line, message)}}));
    }

    // At the end of the text.
    void end(const TtsStream& stream, bool with_summary) {
        locate(stream);
        format_->end_text(location_, diagnostics_, lines_);
        require(output_.write(lines_));
        write_messages(findings_.not_written() + (with_summary ? findings_.summary() : ""));
        require(output_.commit());
    }

    bool has_findings() const { return !findings_.empty(); }

  private:
    static void require(int error) {
        if (error != 0)
            throw std::runtime_error("cannot write standard output: " + Output::describe(error));
    }

    void locate(const TtsStream& stream) {
        location_.text = stream.text();
        location_.text_begin = stream.text_begin();
    }

    Output output_;
    std::unique_ptr<Format> format_;
    FindingsReport findings_;
    Location location_;
    std::vector<Diagnostic> diagnostics_;  // of the sentence to come
    std::string lines_;
};

// Reads what is there of standard input, or waits for it. Empty at its end.
std::string_view read_piece(std::array<char, 65536>& buffer) {
    ssize_t n = 0;
    do {
        n = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    } while (n < 0 && errno == EINTR);
    if (n < 0) {
        throw std::runtime_error(std::string("standard input: cannot be read: ") +
                                 std::strerror(errno));
    }
    return {buffer.data(), static_cast<std::size_t>(n)};
}

}  // namespace

int run_stream(const Options& options) {
    Readings readings;
    if (const std::string faults = readings.load(options); !faults.empty()) {
        write_messages(faults);
        return EXIT_FAILURE;
    }
    announce_terminal(options);
    TtsHost host;
    host.rewrite_by(readings.everyday());
    Writer writer(options);
    const TtsStream* source = nullptr;
    const auto write = [&](const auto& sentence_or_finding) {
        writer.write(*source, sentence_or_finding);
        return true;
    };
    TtsStream stream(host, write, write);
    source = &stream;
    std::array<char, 65536> buffer = {};
    for (std::string_view piece; !(piece = read_piece(buffer)).empty();) stream.add(piece);
    const bool all_read = stream.end();
    writer.end(stream, options.summary);
    return all_read && !(options.strict && writer.has_findings()) ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace kavi::tool
