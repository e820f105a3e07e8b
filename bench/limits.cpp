// Measures what a device must have: the arena's peak by the length of a sentence, and the deepest
// stack of each call, over the worst texts that we know and the files that it is given.

#include <ucontext.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "post_pro_tn_eng.h"

namespace {

using namespace kavi;

// Runs a function on a painted stack and says how far the paint has gone.
class PaintedStack {
  public:
    std::size_t depth_of(const std::function<void()>& function) {
        std::fill(stack_.begin(), stack_.end(), PAINT);
        function_ = &function;
        current_ = this;
        getcontext(&inside_);
        inside_.uc_stack.ss_sp = stack_.data();
        inside_.uc_stack.ss_size = stack_.size();
        inside_.uc_link = &outside_;
        makecontext(
            &inside_, [] { (*current_->function_)(); }, 0);
        swapcontext(&outside_, &inside_);
        const auto deepest =
            std::find_if(stack_.begin(), stack_.end(), [](char c) { return c != PAINT; });
        return static_cast<std::size_t>(stack_.end() - deepest);
    }

  private:
    static constexpr char PAINT = 0x5A;
    inline static PaintedStack* current_ = nullptr;
    std::vector<char> stack_ = std::vector<char>(1 << 20);
    const std::function<void()>* function_ = nullptr;
    ucontext_t inside_ = {};
    ucontext_t outside_ = {};
};

// What the three calls took, each at its worst.
struct Needs {
    std::size_t normalize_stack = 0;
    std::size_t tokenize_stack = 0;
    std::size_t build_stack = 0;
    std::size_t tokenize_arena = 0;
    std::size_t build_arena = 0;

    void raise_to(const Needs& other) {
        normalize_stack = std::max(normalize_stack, other.normalize_stack);
        tokenize_stack = std::max(tokenize_stack, other.tokenize_stack);
        build_stack = std::max(build_stack, other.build_stack);
        tokenize_arena = std::max(tokenize_arena, other.tokenize_arena);
        build_arena = std::max(build_arena, other.build_arena);
    }
};

// The text goes straight into each of the calls, so that each meets its own worst.
Needs measure(std::string text) {
    static PaintedStack stack;
    Needs needs;
    text.resize(SZ_TEXT_MAX_LEN);
    text.back() = '\0';
    char target[SZ_TEXT_MAX_LEN] = {};
    char next[SZ_TEXT_MAX_LEN] = {};
    PostProTnEng engine;
    needs.normalize_stack =
        stack.depth_of([&] { engine.eng_text_normalize(text.data(), target, next); });
    const auto on_arena = [&](std::size_t& depth, const std::function<void()>& call) {
        mem_stack_handle arena = mem_stack_create(0);
        engine.init(arena);
        depth = stack.depth_of(call);
        const std::size_t peak = mem_stack_peak(arena);
        mem_stack_destroy(arena);
        return peak;
    };
    char speakable[SZ_TEXT_MAX_LEN] = {};
    needs.tokenize_arena =
        on_arena(needs.tokenize_stack, [&] { engine.eng_text_tokenize(text.data(), speakable); });
    UtteranceSyllable* utt = nullptr;
    int n_utt = 0;
    needs.build_arena = on_arena(
        needs.build_stack, [&] { engine.eng_text_to_utterance_syllable(text.data(), utt, n_utt); });
    return needs;
}

std::string filled(const std::string& piece, std::size_t length) {
    std::string text;
    while (text.size() < length) text += piece;
    return text.substr(0, length);
}

const char* const PROSE =
    "The committee met on Tuesday to discuss the new budget for schools and roads, and decided "
    "that Dr. Smith should be asked for $5.50 more before 3/1/2020. ";

}  // namespace

int main(int n_files, char** files) {
    const char* const pieces[] = {"!",
                                  "a ",
                                  "7 ",
                                  PROSE,
                                  "<poem=>",
                                  "<poem=p>",
                                  "<poem=a>b</poem>",
                                  "777,",
                                  "Tel.5 ",
                                  "(5) 5 ",
                                  "1:2:3 ",
                                  "$1,234.50 ",
                                  "<prosody=rate=\"1\">",
                                  "xxxxxxxxxx"};
    Needs worst;
    std::printf("sentence  tokenizer's arena  builder's arena  prose: tokenizer's  builder's\n");
    for (const std::size_t length : {64U, 256U, 1024U, 4095U}) {
        Needs of_length;
        for (const std::string piece : pieces) of_length.raise_to(measure(filled(piece, length)));
        const Needs prose = measure(filled(PROSE, length));
        std::printf("%5zu %18zu %16zu %18zu %12zu\n", length, of_length.tokenize_arena,
                    of_length.build_arena, prose.tokenize_arena, prose.build_arena);
        worst.raise_to(of_length);
    }
    for (int i = 1; i < n_files; ++i) {
        std::ifstream file(files[i], std::ios::binary);
        worst.raise_to(measure(std::string(std::istreambuf_iterator<char>(file), {})));
    }
    std::printf(
        "deepest stack: eng_text_normalize %zu, eng_text_tokenize %zu, "
        "eng_text_to_utterance_syllable %zu\n",
        worst.normalize_stack, worst.tokenize_stack, worst.build_stack);
    std::printf("worst: arena %zu, stack %zu\n", std::max(worst.tokenize_arena, worst.build_arena),
                std::max({worst.normalize_stack, worst.tokenize_stack, worst.build_stack}));
    return 0;
}
