// kavi-tn: text in, speakable sentences out.

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <map>
#include <string>

#include "kavi_version.h"
#include "pipeline.h"

namespace {

using kavi::tool::FormatName;
using kavi::tool::Options;
using kavi::tool::Stage;

constexpr int WRONG_USAGE = 2;

int run(int argc, char** argv) {
    Options options;
    CLI::App app{"Turns English text into speakable words, a sentence a line."};
    app.footer(
        "Every input line is a text of its own. Messages go to standard error as "
        "NAME:LINE:BYTE: text; of a kind, the first 20.\nExit status: 0 when everything was "
        "normalised, 1 when something could not be read, normalised or written, 2 for wrong usage, "
        "130 when interrupted.");
    app.set_version_flag("--version", "kavi-tn " KAVI_VERSION);
    const CLI::Option* text = app.add_option("-t,--text", options.text, "Read TEXT first");
    app.add_option("FILE", options.files, "Files to read, \"-\" for standard input (the default)");
    app.add_option("-o,--output", options.output,
                   "Write to FILE, which changes only when all is written");
    const CLI::Option* nul =
        app.add_flag("-0,--null", "Texts end with a NUL byte instead of a line end");
    app.add_option("-j,--jobs", options.jobs, "Read with N threads; the output stays the same")
        ->check(CLI::Range(1, 256));
    app.add_flag("--strict", options.strict, "Exit with 1 when there is any finding");
    app.add_flag("--summary", options.summary, "Say in the end how many findings there were");
    const std::map<std::string, FormatName> formats = {
        {"text", FormatName::text}, {"jsonl", FormatName::jsonl}, {"html", FormatName::html}};
    app.add_option("--format", options.format, "text (the default), jsonl or html")
        ->transform(CLI::CheckedTransformer(formats));
    auto* stage = app.add_option_group("stage", "What text shows of each sentence");
    stage->require_option(0, 1);
    const auto add_stage = [&](const char* name, Stage value, const char* description) {
        stage->add_flag_callback(
            name, [&options, value] { options.stage = value; }, description);
    };
    add_stage("--sentences", Stage::sentences, "The sentence, abbreviations expanded");
    add_stage("--speakable", Stage::speakable, "The words to be spoken (the default)");
    add_stage("--words", Stage::words, "A table of the words with pauses, marks and markup");
    add_stage("--explain", Stage::explain, "Its sections, what was written for them and why");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : WRONG_USAGE;
    }
    options.has_text = text->count() > 0;
    if (nul->count() > 0) options.delimiter = '\0';
    if (!options.has_text && options.files.empty()) options.files.emplace_back("-");
    return kavi::tool::run_pipeline(options);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "kavi-tn: " << error.what() << '\n';
        return 1;
    }
}
