// A JSON object that is written piece by piece.
#ifndef KAVI_TOOL_JSON_LINE_H
#define KAVI_TOOL_JSON_LINE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "tts_places.h"
#include "tts_text_buffer.h"

namespace kavi::tool {

using JsonPlain = PlainCharacters<'"', '\\'>;

// One object after the other. A comma follows each value, until its object or array ends.
class JsonLine {
  public:
    void begin() {
        line_.clear();
        line_ << '{';
    }
    void end(std::string& out) {
        close('}');
        out.append(line_.text().substr(0, line_.text().size() - 1)) += '\n';
    }

    void key(std::string_view name) { line_.add('"', name, "\":"); }
    void text(std::string_view value) { name(escaped(value)); }
    void name(std::string_view plain) { line_.add('"', plain, "\","); }
    void number(std::size_t value) { line_.add(value, ','); }

    template <typename Write>
    void object(Write write) {
        line_ << '{';
        write();
        close('}');
    }
    template <typename Write>
    void array(Write write) {
        line_ << '[';
        write();
        close(']');
    }

    // Begins the object of a word, which close() ends. `is_plain`: the word needs no escapes.
    void begin_word(std::string_view word, bool is_plain, std::string_view after,
                    const TextRange& source, std::string_view pause) {
        if (!is_plain) word = escaped(word);
        if (!JsonPlain::are_all(after)) after = escape(after, escaped_after_);
        line_.add("{\"word\":\"", word, "\",\"after\":\"", after, "\",\"offset\":", source.offset,
                  ",\"length\":", source.length, ",\"pause\":\"", pause, "\",");
    }
    // Begins the object of the head record.
    void begin_head(const TextRange& source, std::string_view pause) {
        line_ << "{\"word\":null,";
        range(source);
        plain_field("pause", pause);
    }

    void close(char bracket) {
        const std::string_view line = line_.text();
        if (line.back() == ',') line_.cut_to(line.size() - 1);
        line_.add(bracket, ',');
    }

    void field(std::string_view name, std::string_view value) { plain_field(name, escaped(value)); }
    void plain_field(std::string_view name, std::string_view value) {
        line_.add('"', name, "\":\"", value, "\",");
    }
    void field(std::string_view name, std::size_t value) {
        line_.add('"', name, "\":", value, ',');
    }
    void range(const TextRange& range) {
        line_.add("\"offset\":", range.offset, ",\"length\":", range.length, ',');
    }

  private:
    // A text as it is written between quotation marks, with U+FFFD for what is not UTF-8. Valid
    // until the next call.
    std::string_view escaped(std::string_view text) {
        return JsonPlain::are_all(text) ? text : escape(text, escaped_text_);
    }
    static std::string_view escape(std::string_view text, TextBuffer& out);

    TextBuffer line_;
    TextBuffer escaped_text_;
    TextBuffer escaped_after_;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_JSON_LINE_H
