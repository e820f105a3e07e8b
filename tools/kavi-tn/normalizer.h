// Reads named inputs line by line and writes what their sentences become.
#ifndef KAVI_TOOL_NORMALIZER_H
#define KAVI_TOOL_NORMALIZER_H

#include <iosfwd>
#include <string>
#include <string_view>

#include "tts_host.h"

namespace kavi::tool {

enum class Stage { speakable, words };

class Normalizer {
  public:
    Normalizer(Stage stage, std::ostream& out, std::ostream& messages)
        : stage_(stage), out_(out), messages_(messages) {}

    // Each reads one input; `name` stands in messages. Every line is a text of its own.
    void read_text(const std::string& name, std::string_view text, std::size_t line = 1);
    void read_stream(const std::string& name, std::istream& in);
    void read_file(const std::string& path);

    // Whether everything was read, normalised and written.
    bool succeeded() const { return succeeded_; }

  private:
    void write(const HostSentence& sentence);
    void fail(const std::string& message);

    Stage stage_;
    std::ostream& out_;
    std::ostream& messages_;
    TtsHost host_;
    bool succeeded_ = true;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_NORMALIZER_H
