// kavi-tn: text in, speakable sentences out.

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "normalizer.h"

namespace {

int run(int argc, char** argv) {
    using kavi::tool::Stage;

    CLI::App app{"Turns English text into speakable words, a sentence a line."};
    app.footer(
        "Every input line is a text of its own. Messages go to standard error as "
        "NAME:LINE:BYTE: text.\nExit status: 0 when everything was normalised, 1 when something "
        "could not be read, normalised or written, 2 for wrong usage.");
    app.set_version_flag("--version", "kavi-tn " KAVI_VERSION);
    std::string text;
    std::vector<std::string> files;
    bool words = false;
    const CLI::Option* text_option = app.add_option("-t,--text", text, "Read TEXT first");
    app.add_option("FILE", files, "Files to read, \"-\" for standard input (the default)");
    app.add_flag("--words", words, "Write a table of the words of each sentence");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        constexpr int WRONG_USAGE = 2;
        return app.exit(error) == 0 ? 0 : WRONG_USAGE;
    }

    std::ios::sync_with_stdio(false);
    kavi::tool::Normalizer normalizer(words ? Stage::words : Stage::speakable, std::cout,
                                      std::cerr);
    if (*text_option) {
        normalizer.read_text("TEXT", text);
    } else if (files.empty()) {
        files.emplace_back("-");
    }
    for (const std::string& file : files) {
        if (file == "-") {
            normalizer.read_stream("standard input", std::cin);
        } else {
            normalizer.read_file(file);
        }
    }
    std::cout.flush();
    if (!std::cout && normalizer.succeeded()) {
        std::cerr << "kavi-tn: cannot write\n";
        return 1;
    }
    return normalizer.succeeded() ? 0 : 1;
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
