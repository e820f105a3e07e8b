// What the command line asks for.
#ifndef KAVI_TOOL_OPTIONS_H
#define KAVI_TOOL_OPTIONS_H

#include <string>
#include <vector>

#include "tts_everyday.h"

namespace kavi::tool {

enum class Stage { sentences, speakable, plain, words, explain };
enum class FormatName { text, jsonl, html, ssml };

// The fields of an object of JSON Lines, in their order; those before `runs` are the default.
enum class Field {
    input,
    line,
    sentence,
    offset,
    length,
    source,
    normalized,
    speakable,
    plain,
    before,
    words,
    findings,
    runs,
    version,  // of the readings
};

struct Options {
    Stage stage = Stage::speakable;
    FormatName format = FormatName::text;
    std::vector<Field> fields;       // of JSON Lines; empty: all but runs and version
    bool marks = false;              // of SSML: a mark before each word
    std::vector<std::string> files;  // "-" is standard input
    bool has_text = false;
    std::string text;      // read before the files
    std::string output;    // empty: standard output
    std::string findings;  // a file; empty: none
    std::string lexicon;   // a file; empty: none
    bool everyday = false;
    std::vector<EverydayClass> without;  // classes of everyday English that stay off
    bool american_dates = false;
    bool stream = false;  // standard input is one text, answered clause by clause
    bool check = false;   // the files hold texts and the words that are expected
    char delimiter = '\n';
    unsigned part = 1;  // of the files, of `parts`, cut at the ends of texts
    unsigned parts = 1;
    unsigned jobs = 1;
    bool strict = false;   // a finding makes the exit status 1
    bool summary = false;  // says in the end how many findings there were
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_OPTIONS_H
