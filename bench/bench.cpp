// How fast the calls are, beside what they are compared with, and how their cost grows with the
// text. Names of benchmarks are KIND/WHAT or KIND/WHAT/BYTES; scripts/bench makes a table of them.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstring>
#include <set>
#include <vector>

#include "calls.h"
#include "corpus.h"
#include "peers.h"
#include "tts_everyday.h"
#include "tts_lexicon.h"

namespace kavi::bench {
namespace {

constexpr std::size_t CORPUS_BYTES = std::size_t{200} * 1000;

// A corpus as each of the calls gets it.
struct Prepared {
    std::vector<std::string> raw;
    std::vector<std::string> sentences;
    std::vector<std::string> speakable;
};

Prepared prepare(const std::vector<std::string>& raw) {
    Prepared prepared;
    prepared.raw = raw;
    Calls calls;
    for (const std::string& text : raw) {
        calls.normalize(text, [&](char* sentence) {
            prepared.sentences.emplace_back(sentence);
            prepared.speakable.emplace_back(calls.tokenize(sentence));
        });
    }
    return prepared;
}

std::size_t bytes_of(const std::vector<std::string>& texts) {
    std::size_t bytes = 0;
    for (const std::string& text : texts) bytes += text.size();
    return bytes;
}

// Reads all the texts in every iteration; the rate is by their bytes and by their words.
template <typename Read>
void add(const std::string& name, std::vector<std::string> texts, Read read) {
    benchmark::RegisterBenchmark(name.c_str(), [texts, read](benchmark::State& state) mutable {
        for (auto _ : state) {
            for (std::string& text : texts) benchmark::DoNotOptimize(read(text));
        }
        std::size_t words = 0;
        for (const std::string& text : texts) words += count_words(text);
        state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes_of(texts)));
        state.counters["words"] = static_cast<double>(words);
    });
}

Calls& calls() {
    static Calls the_calls;
    return the_calls;
}

int read_all(const std::string& text) {
    return calls().all(text);
}

std::size_t copy(const std::string& text) {
    static char target[1 << 20];
    std::memcpy(target, text.data(), text.size());
    benchmark::ClobberMemory();
    return text.size();
}

void add_ordinary(const Kind& kind) {
    const std::string name = kind.name;
    const Prepared prepared = prepare(paragraphs(kind, CORPUS_BYTES));
    add(name + "/memcpy", prepared.raw, copy);
    add(name + "/loop", prepared.raw, count_words);
    add(name + "/normalize", prepared.raw, [](const std::string& text) {
        calls().normalize(text, [](char* sentence) { benchmark::DoNotOptimize(sentence); });
        return 0;
    });
    add(name + "/tokenize", prepared.sentences,
        [](std::string& sentence) { return calls().tokenize(sentence.data()); });
    add(name + "/build", prepared.speakable,
        [](std::string& speakable) { return calls().build(speakable.data()); });
    add(name + "/all", prepared.raw, read_all);
    add(name + "/host", prepared.raw,
        [](const std::string& text) { return read_by_host(text, false); });
    add(name + "/places", prepared.raw,
        [](const std::string& text) { return read_by_host(text, true); });
    if (flite_words("word") > 0) add(name + "/flite", prepared.raw, flite_words);
    if (espeak_phonemes("word") > 0) add(name + "/espeak-ng", prepared.raw, espeak_phonemes);
}

// The longest sentence of the kind whose reading fits. One that does not is given up half-way.
std::size_t longest(const Kind& kind) {
    for (std::size_t length = SZ_TEXT_MAX_LEN - 1;; length -= 64) {
        const Prepared prepared = prepare({kind.sentence(length, 1)});
        if (bytes_of(prepared.speakable) < 4000) return length;
    }
}

// One sentence of each length, fitting or not, through all calls; as a whole megabyte straight into
// the builder.
void add_lengths(const Kind& kind) {
    const std::size_t fitting = longest(kind);
    std::set<std::size_t> lengths = {64, 256, 1024, fitting, SZ_TEXT_MAX_LEN - 1};
    for (const std::size_t length : lengths) {
        add(std::string(kind.name) + "/length/" + std::to_string(length),
            {kind.sentence(length, 1)}, read_all);
    }
    for (const std::size_t length : {100000U, 1000000U}) {
        add(std::string(kind.name) + "/builder/" + std::to_string(length),
            {kind.sentence(length, 1)},
            [](std::string& text) { return calls().build(text.data()); });
    }
}

// The same text, cut into texts of each length, through the host layer.
void add_host(const Kind& kind) {
    constexpr std::size_t ALL = 10000000;
    std::string whole;
    for (const std::string& paragraph : paragraphs(kind, ALL)) whole += paragraph;
    whole.resize(ALL);
    for (const std::size_t length : {1000U, 10000U, 100000U, 1000000U, 10000000U}) {
        std::vector<std::string> texts;
        for (std::size_t at = 0; at < ALL; at += length) texts.push_back(whole.substr(at, length));
        add(std::string(kind.name) + "/host/" + std::to_string(length), texts,
            [](const std::string& text) { return read_by_host(text, false); });
    }
}

// So many readings of a user's own: names that no text has, and for every hundredth two words of
// which the first is in every text.
std::string lexicon_lines(int n) {
    std::string lines;
    for (int i = 0; i < n; ++i) {
        std::string name(5, 'a');
        for (int rest = i, at = 0; at < 5; ++at, rest /= 26)
            name[at] += static_cast<char>(rest % 26);
        lines += (i % 100 == 0 ? "the " : "") + name + "\tthe name " + name +
                 (i % 2 == 0 ? "\tany case\n" : "\n");
    }
    return lines;
}

// What comes before the calls when a user asks for it.
void add_rewriting(const Kind& kind) {
    const std::string name = kind.name;
    const auto texts = paragraphs(kind, CORPUS_BYTES);
    static Everyday everyday(nullptr);
    everyday.set_all(true);
    static Lexicon lexicon;
    static Everyday by_lexicon(&lexicon);
    add(name + "/everyday", texts,
        [](const std::string& text) { return rewritten(everyday, text).size(); });
    const std::string lines = lexicon_lines(100000);
    std::string error;
    lexicon.add("lexicon", lines, error);
    add(name + "/lexicon", texts,
        [](const std::string& text) { return rewritten(by_lexicon, text).size(); });
    add(name + "/load", {lines}, [](const std::string& text) {
        std::string fault;
        return Lexicon().add("lexicon", text, fault);
    });
}

// Memory that goes back to the system comes from it cleared, page by page; that is not what is to
// be measured.
void keep_memory() {
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

}  // namespace
}  // namespace kavi::bench

int main(int argc, char** argv) {
    using namespace kavi::bench;
    keep_memory();
    for (const Kind& kind : ORDINARY) add_ordinary(kind);
    add_ordinary(LICENCES);
    for (const Kind& kind : ORDINARY) add_lengths(kind);
    for (const Kind& kind : WORST) add_lengths(kind);
    add_host(ORDINARY[0]);
    add_rewriting(ORDINARY.back());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
