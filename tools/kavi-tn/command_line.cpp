#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>

#include "kavi_version.h"
#include "names.h"
#include "output.h"

namespace kavi::tool {

namespace {

constexpr const char* HELP = R"(Usage: kavi-tn [OPTION]... [-t TEXT] [FILE]...
Turns English text into the words that a speech engine says. Reads TEXT, then each FILE, "-" or
nothing for standard input; every line is a text of its own.

What is written of each sentence, a line or a table each:
  --speakable          words with marks as tags (the default)
  --plain              words, with punctuation and blanks as written; a line for each text
  --sentences          the sentence as cut, abbreviations expanded
  --words              a table of the words with pauses, marks and markup
  --explain            what was written, what is said for it, and the rule

How it is written:
  --format FORMAT      text (the default), jsonl (an object a sentence), html (a page) or ssml
  --fields LIST        of jsonl: input,line,sentence,offset,length,source,normalized,speakable,
                       plain,before,words,findings,runs,version; without it
                       all but runs and version
  --marks              of ssml: before each word a mark named OFFSET-LENGTH, its place in the line
  -o, --output FILE    to FILE, which changes only when all is written, and may be an input

How it is read:
  -t, --text TEXT      read TEXT first
  -0, --null           texts end with a NUL byte instead of a line end
  --part I/N           of the FILEs together, the I-th of N parts, cut at line ends
  --stream             standard input is one text, and each clause written as soon as nothing
                       that may come can change it
  -j, --jobs N         with N threads, 0 for all processors; the output stays the same

With other readings than the engine's:
  --lexicon FILE       with FILE's readings: lines WRITTEN, a tab, SPOKEN
  --everyday           with rules for everyday English: $1.5 million, 5 km, won't, 1990s, ...
  --without LIST       of these not: titles,contractions,currencies,units,years,times,addresses,
                       roman,numbers,letters,shields,marks
  --american-dates     3/1/2020 is March first
  --check              FILEs hold TEXT, a tab, the words expected; says where others are spoken

What is told beside it, on standard error, as NAME:LINE: byte OFFSET: text:
  --strict             exit with 1 when there is any finding
  --findings FILE      all of them to FILE, a JSON object a line; here the first 20 of a kind
  --summary            say in the end how many findings of each kind there were

  -h, --help           show this
  --version            show the version

Examples:
  kavi-tn -t 'Dr. Smith paid $5.50.'
  kavi-tn --explain notes.txt
  kavi-tn --format jsonl --fields source,plain -j 0 corpus.txt -o corpus.jsonl
  kavi-tn --format html page.txt -o page.html

Exit status: 0 when everything was normalised, 1 when something could not be read, normalised or
written, 2 for wrong usage, 128 and the signal's number when interrupted.
)";

constexpr unsigned JOBS_MAX = 256;

struct FormatRow {
    const char* name;
    FormatName format;
};
constexpr FormatRow FORMATS[] = {{"text", FormatName::text},
                                 {"jsonl", FormatName::jsonl},
                                 {"html", FormatName::html},
                                 {"ssml", FormatName::ssml}};

std::string wrong_value(const std::string& takes, const std::string& value) {
    return "takes " + takes + ", not " + in_quotes(value);
}

// ---- Each sets an option from its value and returns what is wrong with the value, or "" ----

std::string set_format(const std::string& value, Options& options) {
    for (const FormatRow& row : FORMATS) {
        if (value != row.name) continue;
        options.format = row.format;
        return {};
    }
    return wrong_value("text, jsonl, html or ssml", value);
}

std::string set_jobs(const std::string& value, Options& options) {
    unsigned jobs = 0;
    const char* end = value.data() + value.size();
    const auto [rest, error] = std::from_chars(value.data(), end, jobs);
    if (error != std::errc() || rest != end || jobs > JOBS_MAX) {
        return wrong_value("a number from 0 to 256", value);
    }
    options.jobs = jobs != 0 ? jobs : std::max(1U, std::thread::hardware_concurrency());
    return {};
}

std::string set_part(const std::string& value, Options& options) {
    const char* end = value.data() + value.size();
    const auto part = std::from_chars(value.data(), end, options.part);
    const bool has_slash = part.ec == std::errc() && part.ptr != end && *part.ptr == '/';
    const auto parts = std::from_chars(has_slash ? part.ptr + 1 : end, end, options.parts);
    const bool is_part = has_slash && parts.ec == std::errc() && parts.ptr == end &&
                         options.part > 0 && options.part <= options.parts;
    return is_part ? "" : wrong_value("a part and how many there are, such as 1/4", value);
}

std::string set_fields(const std::string& value, Options& options) {
    options.fields.clear();
    std::istringstream list(value);
    for (std::string name; std::getline(list, name, ',');) {
        const std::optional<Field> field = field_of(name);
        if (!field) return wrong_value("names of fields with commas between them", value);
        options.fields.push_back(*field);
    }
    std::sort(options.fields.begin(), options.fields.end());
    options.fields.erase(std::unique(options.fields.begin(), options.fields.end()),
                         options.fields.end());
    return options.fields.empty() ? wrong_value("names of fields", value) : "";
}

std::string set_without(const std::string& value, Options& options) {
    std::istringstream list(value);
    for (std::string name; std::getline(list, name, ',');) {
        const std::optional<EverydayClass> everyday_class = everyday_class_of(name);
        if (!everyday_class) return wrong_value("names of classes with commas between them", value);
        options.without.push_back(*everyday_class);
    }
    return {};
}

// The command line, bound to the options that it sets.
class Parser {
  public:
    explicit Parser(Options& options) : options_(options) {
        app_.set_help_flag();
        add_flag("-h,--help", help_);
        add_flag("--version", version_);
        text_ = app_.add_option("-t,--text", options.text)->take_last();
        app_.add_option("FILE", options.files);
        app_.add_option("-o,--output", options.output)->take_last();
        add_flag("-0,--null", null_);
        add_flag("--strict", options.strict);
        add_flag("--summary", options.summary);
        app_.add_option("--findings", options.findings)->take_last();
        add_value("-j,--jobs", set_jobs);
        add_value("--format", set_format);
        add_flag("--marks", options.marks);
        part_ = add_value("--part", set_part);
        fields_ = add_value("--fields", set_fields);
        app_.add_option("--lexicon", options.lexicon)->take_last();
        add_flag("--everyday", options.everyday);
        without_ = add_value("--without", set_without);
        american_dates_ = add_flag("--american-dates", options.american_dates);
        add_flag("--check", options.check);
        add_flag("--stream", options.stream);
        add_stage("--sentences", Stage::sentences);
        add_stage("--speakable", Stage::speakable);
        add_stage("--plain", Stage::plain);
        add_stage("--words", Stage::words);
        add_stage("--explain", Stage::explain);
    }

    // Sets the options. Returns what is wrong with the arguments, or "".
    std::string parse(int argc, char** argv) {
        try {
            app_.parse(argc, argv);
        } catch (const CLI::ExtrasError&) {
            return "no such option: " + shown(app_.remaining()[0]);
        } catch (const CLI::ArgumentMismatch& error) {
            const std::string text = error.what();
            const bool is_flag = text.find("flag override") != std::string::npos;
            const std::string name = text.substr(0, text.find_first_of(": "));
            return is_flag ? "--" + name + ": takes no value" : name + ": takes a value";
        } catch (const CLI::ParseError& error) {
            return error.what();
        }
        if (std::string wrong = conflict(); !wrong.empty()) return wrong;
        options_.has_text = text_->count() > 0;
        if (null_) options_.delimiter = '\0';
        if (!options_.has_text && options_.files.empty()) options_.files.emplace_back("-");
        return {};
    }

    bool wants_help() const { return help_; }
    bool wants_version() const { return version_; }

  private:
    using Setter = std::string (*)(const std::string& value, Options& options);

    // Which of the options do not go together, or "".
    std::string conflict() const {
        if (stages_.size() > 1) {
            return stages_[0] + " and " + stages_[1] + " exclude each other";
        }
        if (!stages_.empty() && options_.format != FormatName::text) {
            return stages_[0] + " goes with --format text alone" +
                   (options_.format == FormatName::jsonl ? "; choose by --fields" : "");
        }
        if (fields_->count() > 0 && options_.format != FormatName::jsonl) {
            return "--fields goes with --format jsonl alone";
        }
        if (options_.marks && options_.format != FormatName::ssml) {
            return "--marks goes with --format ssml alone";
        }
        const bool has_frame =
            options_.format == FormatName::html || options_.format == FormatName::ssml;
        if (part_->count() > 0 && (has_frame || text_->count() > 0 || options_.check)) {
            return "--part goes with FILEs and --format text or jsonl alone";
        }
        for (const CLI::Option* option : {without_, american_dates_}) {
            if (option->count() > 0 && !options_.everyday) {
                return option->get_name() + " goes with --everyday alone";
            }
        }
        const bool writes_sentences = !stages_.empty() || options_.format != FormatName::text ||
                                      !options_.output.empty() || !options_.findings.empty() ||
                                      null_;
        if (options_.check && writes_sentences) {
            return "--check goes with files of lines and with --lexicon and --everyday alone";
        }
        if (!options_.findings.empty() && options_.findings == options_.output) {
            return "--findings and --output name the same file";
        }
        const bool is_of_lines = text_->count() > 0 || !options_.files.empty() || null_ ||
                                 options_.check || has_frame || !options_.output.empty() ||
                                 !options_.findings.empty();
        if (options_.stream && is_of_lines) {
            return "--stream goes with standard input and output, and --format text or jsonl alone";
        }
        return {};
    }

    CLI::Option* add_value(const char* name, Setter set) {
        return app_
            .add_option_function<std::string>(
                name,
                [this, name, set](const std::string& value) {
                    const std::string wrong = set(value, options_);
                    const std::string_view names = name;
                    if (wrong.empty()) return;
                    throw CLI::ValidationError(std::string(names.substr(names.find("--"))), wrong);
                })
            ->take_last();
    }

    CLI::Option* add_flag(const char* name, bool& flag) {
        return app_.add_flag(name, flag)->disable_flag_override();
    }

    void add_stage(const char* name, Stage stage) {
        app_.add_flag_callback(name,
                               [this, name, stage] {
                                   stages_.emplace_back(name);
                                   options_.stage = stage;
                               })
            ->disable_flag_override();
    }

    Options& options_;
    CLI::App app_;
    bool help_ = false;
    bool version_ = false;
    bool null_ = false;
    CLI::Option* text_ = nullptr;
    CLI::Option* fields_ = nullptr;
    CLI::Option* part_ = nullptr;
    CLI::Option* without_ = nullptr;
    CLI::Option* american_dates_ = nullptr;
    std::vector<std::string> stages_;
};

}  // namespace

std::optional<Options> parse_command_line(int argc, char** argv, int& status) {
    constexpr int WRONG_USAGE = 2;
    Options options;
    Parser parser(options);
    const std::string wrong = parser.parse(argc, argv);
    status = 0;
    if (parser.wants_help()) {
        std::cout << HELP;
    } else if (parser.wants_version()) {
        std::cout << "kavi-tn " KAVI_VERSION ", readings " << READINGS_VERSION << "\n";
    } else if (!wrong.empty()) {
        write_messages("kavi-tn: " + wrong + "\nTry \"kavi-tn --help\".\n");
        status = WRONG_USAGE;
    } else {
        return options;
    }
    return {};
}

}  // namespace kavi::tool
