#include "check.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "block_reader.h"
#include "format.h"
#include "names.h"
#include "output.h"
#include "readings.h"
#include "tts_host.h"

namespace kavi::tool {

namespace {

constexpr std::size_t BAD_LINES_REPORTED = 20;

// Words in lower case, and the marks before each and after the last.
struct MarkedWords {
    std::vector<std::string> words;
    std::vector<std::string> marks = {""};
};

bool is_letter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

MarkedWords marked_words(std::string_view text) {
    constexpr std::string_view BLANKS = " \t\r\n";
    MarkedWords result;
    while (!text.empty()) {
        const auto* end = std::find_if_not(text.begin(), text.end(), is_letter);
        const auto n = static_cast<std::size_t>(end - text.begin());
        if (n > 0) {
            std::string& word = result.words.emplace_back(text.substr(0, n));
            for (char& c : word) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            result.marks.emplace_back();
        } else if (BLANKS.find(text[0]) == std::string_view::npos) {
            result.marks.back() += text[0];
        }
        text.remove_prefix(std::max(n, std::size_t{1}));
    }
    return result;
}

// Marks count only where they are expected.
bool is_as_expected(const MarkedWords& spoken, const MarkedWords& expected) {
    if (spoken.words != expected.words) return false;
    for (std::size_t i = 0; i < expected.marks.size(); ++i) {
        if (!expected.marks[i].empty() && expected.marks[i] != spoken.marks[i]) return false;
    }
    return true;
}

// The word with the marks after it, the first also with those before it; "-" after the last.
std::string column(const MarkedWords& text, std::size_t i, bool with_marks) {
    if (i >= text.words.size()) return "-";
    if (!with_marks) return text.words[i];
    return (i == 0 ? text.marks[0] : "") + text.words[i] + text.marks[i + 1];
}

// The words of both in two lines, word under word; with marks when all words are the same.
std::string table_of(const MarkedWords& expected, const MarkedWords& spoken) {
    const bool with_marks = expected.words == spoken.words;
    std::string upper = "  expected:";
    std::string lower = "  spoken:  ";
    const std::size_t n = std::max(expected.words.size(), spoken.words.size());
    for (std::size_t i = 0; i < n; ++i) {
        const std::string above = column(expected, i, with_marks);
        const std::string below = column(spoken, i, with_marks);
        const std::size_t width = std::max(above.size(), below.size()) + 1;
        upper += std::string(width - above.size(), ' ') + above;
        lower += std::string(width - below.size(), ' ') + below;
    }
    return upper + "\n" + lower + "\n";
}

// Compares line after line, and counts.
class Check {
  public:
    explicit Check(const Everyday* everyday) : error_(output_.open("")) {
        host_.rewrite_by(everyday);
    }

    void block(const Block& block) {
        if (block.long_text != nullptr) line(block.input, block.first, block.long_text->text());
        std::string_view rest = block.bytes;
        for (std::size_t number = block.first; !rest.empty(); ++number) {
            const std::size_t end = rest.find('\n');
            line(block.input, number, rest.substr(0, end));
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        }
        const std::string name = "kavi-tn: " + shown(block.input) + ": ";
        if (!block.notice.empty()) write_messages(name + block.notice + "\n");
        if (block.failure.empty()) return;
        write_messages(name + "cannot be read: " + block.failure + "\n");
        all_read_ = false;
    }

    // Writes the sums. Returns the exit status.
    int end() {
        if (bad_lines_ > BAD_LINES_REPORTED) {
            write_messages("kavi-tn: " + std::to_string(bad_lines_ - BAD_LINES_REPORTED) +
                           " more without a tab\n");
        }
        write(std::to_string(as_expected_) + " of " + std::to_string(lines_) + " as expected\n");
        if (error_ != 0) {
            write_messages(std::string("kavi-tn: cannot write standard output: ") +
                           Output::describe(error_) + "\n");
        }
        const bool all = error_ == 0 && all_read_ && bad_lines_ == 0 && as_expected_ == lines_;
        return all ? EXIT_SUCCESS : EXIT_FAILURE;
    }

  private:
    void line(const std::string& input, std::size_t number, std::string_view line) {
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line[0] == '#') return;
        const std::size_t tab = line.find('\t');
        const std::string prefix = shown(input) + ":" + std::to_string(number) + ": ";
        if (tab == std::string_view::npos) {
            if (++bad_lines_ > BAD_LINES_REPORTED) return;
            return write_messages(prefix + "no tab between a text and the words expected of it\n");
        }
        const std::string_view text = line.substr(0, tab);
        const std::string_view expected = line.substr(tab + 1);
        const MarkedWords spoken = marked_words(plain(text));
        ++lines_;
        if (is_any(expected, spoken)) {
            ++as_expected_;
        } else {
            const std::string_view first = expected.substr(0, expected.find('\t'));
            write(prefix + std::string(text) + "\n" + table_of(marked_words(first), spoken));
        }
    }

    static bool is_any(std::string_view alternatives, const MarkedWords& spoken) {
        for (std::size_t at = 0; at <= alternatives.size();) {
            const std::size_t end = std::min(alternatives.find('\t', at), alternatives.size());
            if (is_as_expected(spoken, marked_words(alternatives.substr(at, end - at))))
                return true;
            at = end + 1;
        }
        return false;
    }

    // What --plain writes for a text.
    std::string plain(std::string_view text) {
        std::string line;
        Location location = {"", 1, 1, 0, text};
        host_.read(
            text,
            [&](const HostSentence& sentence) {
                ++location.sentence;
                plain_->write(location, sentence, {}, line);
                return true;
            },
            nullptr);
        plain_->end_text(location, {}, line);
        return line;
    }

    void write(const std::string& lines) {
        if (error_ == 0) error_ = output_.write(output_.is_terminal() ? visible(lines) : lines);
    }

    Output output_;
    int error_;  // of a write
    TtsHost host_;
    std::unique_ptr<Format> plain_ = make_text_format(Stage::plain);
    std::size_t lines_ = 0;
    std::size_t as_expected_ = 0;
    std::size_t bad_lines_ = 0;  // without a tab
    bool all_read_ = true;
};

}  // namespace

int run_check(const Options& options) {
    Readings readings;
    if (const std::string faults = readings.load(options); !faults.empty()) {
        write_messages(faults);
        return EXIT_FAILURE;
    }
    Check check(readings.everyday());
    BlockReader reader(options);
    for (Block block; reader.next(block);) check.block(block);
    return check.end();
}

}  // namespace kavi::tool
