#include "floor.h"

#include <array>
#include <cstring>
#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi::bench {

namespace {

constexpr std::size_t ZHUYIN = 128;

constexpr std::array<bool, 256> in(const char* characters) {
    std::array<bool, 256> all{};
    all[0] = true;
    for (; *characters != '\0'; ++characters) all[static_cast<unsigned char>(*characters)] = true;
    return all;
}
constexpr auto ENDS_SENTENCE = in(".?!,;:");
constexpr auto ENDS_WORD = in(" ");

template <typename Table>
const char* find(const Table& table, const char* at) {
    while (!table[static_cast<unsigned char>(*at)]) ++at;
    return at;
}

class Floor {
  public:
    int all(const std::string& text) {
        char* source = buffers_[0];
        char* rest = buffers_[1];
        std::memcpy(source, text.c_str(), text.size() + 1);
        std::size_t left = text.size();
        int records = 0;
        while (left > 0) {
            const std::size_t size = normalize(source, left, rest);
            left -= size;
            records += build(size);
            std::swap(source, rest);
        }
        return records;
    }

  private:
    // The length of the first sentence.
    std::size_t normalize(const char* source, std::size_t left, char* rest) {
        const char* end = find(ENDS_SENTENCE, source);
        if (*end != '\0') ++end;
        const auto size = static_cast<std::size_t>(end - source);
        std::memcpy(sentence_, source, size);
        sentence_[size] = '\0';
        std::memcpy(rest, end, left - size + 1);
        return size;
    }

    // Words come with one blank between.
    int build(std::size_t size) {
        std::memcpy(speakable_, sentence_, size + 1);  // as the tokenizer writes it
        int n = 0;
        for (const char* at = speakable_; *at != '\0';) {
            const char* end = find(ENDS_WORD, at);
            words_[n++] = {at, static_cast<std::size_t>(end - at)};
            at = end + (*end == ' ' ? 1 : 0);
        }
        const std::size_t bytes = static_cast<std::size_t>(n + 1) * sizeof(UtteranceSyllable);
        auto* records = static_cast<UtteranceSyllable*>(request(bytes));
        std::memset(static_cast<void*>(records), 0, bytes);
        for (int i = 0; i < n; ++i) store(words_[i], records[i + 1]);
        for (int i = 1; i <= n; ++i) {
            release(records[i].syllable);
            release(records[i].zhuyin);
        }
        release(records);
        return n + 1;
    }

    void store(std::string_view word, UtteranceSyllable& record) {
        record.syllable = static_cast<char*>(request(word.size() + 1));
        std::memcpy(record.syllable, word.data(), word.size());
        record.syllable[word.size()] = '\0';
        record.syl_len = static_cast<short>(word.size() + 1);
        record.zhuyin = static_cast<char*>(request(ZHUYIN));
        std::memset(record.zhuyin, 0, ZHUYIN / 2);
        std::memset(record.zhuyin + ZHUYIN / 2, 0, ZHUYIN / 2);
        record.zy_len = ZHUYIN;
        record.pause_type = record.pausetype_ta = record.pause_type_tn = PAUSE_WORD_FE;
    }

    void* request(std::size_t size) { return mem_stack_request_buf(size, MEM_COMMON, arena_); }
    void release(void* block) { mem_stack_release_buf(block, 0, MEM_COMMON, arena_); }

    mem_stack_handle arena_ = mem_stack_create(0);
    char buffers_[2][SZ_TEXT_MAX_LEN] = {};
    char sentence_[SZ_TEXT_MAX_LEN] = {};
    char speakable_[SZ_TEXT_MAX_LEN] = {};
    std::string_view words_[SZ_TEXT_MAX_LEN];
};

}  // namespace

int read_floor(const std::string& text) {
    static Floor floor;
    return floor.all(text);
}

}  // namespace kavi::bench
