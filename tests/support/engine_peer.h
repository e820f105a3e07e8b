// Lets tests call the engine with plain strings, its private readers included.
#ifndef KAVI_TESTS_ENGINE_PEER_H
#define KAVI_TESTS_ENGINE_PEER_H

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "post_pro_tn_eng.h"

namespace kavi {

struct PostProTnEngPeer {
    using Text = char* (PostProTnEng::*)(char*, char*);
    static constexpr Text number_read = &PostProTnEng::number_read;
    static constexpr Text number_to_normal = &PostProTnEng::number_to_normal;
    static constexpr Text number_to_string = &PostProTnEng::number_to_string;
    static constexpr Text str_turn = &PostProTnEng::str_turn;
    static constexpr Text year_read = &PostProTnEng::year_read;
    static constexpr Text month_read = &PostProTnEng::month_read;
    using TextTest = int (PostProTnEng::*)(char*);
    static constexpr TextTest number_def = &PostProTnEng::number_def;
    static constexpr TextTest month_def = &PostProTnEng::month_def;
    using SectionTest = int (PostProTnEng::*)(Section*);
    static constexpr SectionTest data_decide = &PostProTnEng::data_decide;
    static constexpr SectionTest fraction_decide = &PostProTnEng::fraction_decide;
    static constexpr SectionTest decimal_decide = &PostProTnEng::decimal_decide;
    static constexpr SectionTest currency_decide = &PostProTnEng::currency_decide;
    static constexpr SectionTest phone_number_decide = &PostProTnEng::phone_number_decide;
    static constexpr SectionTest time_decide = &PostProTnEng::time_decide;
    using Reader = Section* (PostProTnEng::*)(Section*, char*);
    static constexpr Reader phone_number_read = &PostProTnEng::phone_number_read;
    static constexpr Reader data_number = &PostProTnEng::data_number;
    static constexpr Reader fraction_number = &PostProTnEng::fraction_number;
    static constexpr Reader decimal_number = &PostProTnEng::decimal_number;
    static constexpr Reader currrency_read = &PostProTnEng::currrency_read;
    static constexpr Reader str_number = &PostProTnEng::str_number;
    static constexpr Reader turn = &PostProTnEng::turn;
    static constexpr Reader time_number = &PostProTnEng::time_number;
    static constexpr Reader process_plus = &PostProTnEng::process_plus;
    static constexpr Reader process_single_quote = &PostProTnEng::process_single_quote;
    static constexpr auto process_bracket = &PostProTnEng::process_bracket;
    static constexpr auto process_upper_case = &PostProTnEng::process_upper_case;
    static constexpr auto re_regular = &PostProTnEng::re_regular;
    static constexpr auto insert_punc = &PostProTnEng::insert_punc;
    static constexpr auto insert_pause = &PostProTnEng::insert_pause;
    static char* parse_tag(PostProTnEng& engine, char* text, char* name, char* value,
                           char* content) {
        return engine.parse_tag(text, name, value, content);
    }
};

// An engine on an arena of its own. Every test ends with nothing in use there.
class EngineTest : public testing::Test {
  protected:
    EngineTest() { engine.init(arena); }
    ~EngineTest() override {
        EXPECT_EQ(mem_stack_used(arena), 0U) << "blocks that never went back";
        mem_stack_destroy(arena);
    }

    struct Cut {
        std::string sentence;
        std::string rest;
    };
    Cut normalize(std::string source) {
        char target[SZ_TEXT_MAX_LEN] = {};
        char next[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.eng_text_normalize(source.data(), target, next), 0);
        return {target, next};
    }

    std::string tokenize(std::string sentence, int expected = 0) {
        char target[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.eng_text_tokenize(sentence.data(), target), expected) << sentence;
        return target;
    }

    // What a queue reads as whose sections are written as class, a blank, and text.
    std::string process(const std::vector<std::string>& written) {
        std::vector<Section> sections(written.size());
        for (std::size_t i = 0; i < written.size(); ++i) {
            const std::size_t blank = written[i].find(' ');
            std::strcpy(sections[i].sz_char, written[i].c_str() + blank + 1);
            sections[i].m_nmark = std::stoi(written[i]);
            if (i > 0) sections[i].m_pprevious = &sections[i - 1];
            if (i + 1 < sections.size()) sections[i].m_pnext = &sections[i + 1];
        }
        char target[SZ_TEXT_MAX_LEN] = {};
        EXPECT_EQ(engine.section_process(sections.data(), target), 0);
        return target;
    }

    // What a text-to-text operation leaves in a 500-byte buffer that held `before`.
    std::string call(PostProTnEngPeer::Text operation, std::string source,
                     const std::string& before = "") {
        char target[WORD_MAX_LEN];
        std::memset(target, 'g', sizeof target);
        std::strcpy(target, before.c_str());
        (engine.*operation)(source.data(), target);
        return target;
    }

    int test(PostProTnEngPeer::TextTest operation, std::string source) {
        return (engine.*operation)(source.data());
    }

    // The answer of a test on the first section of a text.
    int test(PostProTnEngPeer::SectionTest operation, std::string source) {
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(source.data(), head), 0);
        const int answer = (engine.*operation)(head);
        release(head);
        return answer;
    }

    void release(Section* head) {
        while (head != nullptr) {
            Section* next = head->m_pnext;
            mem_stack_release_buf(head, 0, MEM_COMMON, arena);
            head = next;
        }
    }

    mem_stack_handle arena = mem_stack_create(0);
    PostProTnEng engine;
};

}  // namespace kavi

#endif  // KAVI_TESTS_ENGINE_PEER_H
