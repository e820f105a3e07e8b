#include "engine_peer.h"
#include "expect_table.h"

namespace kavi {
namespace {

class Sections : public EngineTest {
  protected:
    // The sections of a text, and whether their classes and links are right.
    std::vector<std::string> cut(std::string text) {
        Section* head = nullptr;
        EXPECT_EQ(engine.text_to_queue(text.data(), head), 0);
        std::vector<std::string> texts;
        const Section* previous = nullptr;
        for (const Section* s = head; s != nullptr; previous = s, s = s->m_pnext) {
            texts.emplace_back(s->sz_char);
            EXPECT_EQ(s->m_pprevious, previous);
            EXPECT_EQ(s->m_nmark, class_of(s->sz_char[0])) << s->sz_char;
        }
        release(head);
        return texts;
    }

    static int class_of(char c) {
        if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return STRINGSYMBOL;
        return c >= '0' && c <= '9' ? NUMBERSYMBOL : MARKSYMBOL;
    }
};

TEST_F(Sections, CutAtClassesBlanksAndTags) {
    expect_table("sections", [this](const std::string& text) {
        TableRow row = cut(text);
        row.insert(row.begin(), text);
        return row;
    });
}

TEST_F(Sections, OneIsAppendedZeroFilledOrNoneForNoText) {
    Section* head = nullptr;
    char nothing[] = "";
    char word[] = "word";
    std::string too_long(600, '7');
    EXPECT_EQ(engine.add_section(nothing, head), 0);
    EXPECT_EQ(head, nullptr);
    EXPECT_EQ(engine.add_section(word, head), 0);
    EXPECT_EQ(engine.add_section(too_long.data(), head), 0);
    EXPECT_EQ(std::string(head->sz_char, WORD_MAX_LEN), "word" + std::string(496, '\0'));
    EXPECT_EQ(std::string(head->m_pnext->sz_char), std::string(499, '7'));
    EXPECT_EQ(head->m_pnext->m_nmark, NUMBERSYMBOL);
    EXPECT_EQ(engine.add_section(word, head), 0);
    EXPECT_STREQ(head->m_pnext->m_pnext->sz_char, "word");
    release(head);
}

TEST_F(Sections, RefusedBlockFailsAndKeepsWhatIsThere) {
    mem_stack_handle small = mem_stack_create(2 * sizeof(Section));
    engine.init(small);
    char text[] = "a b c";
    Section* head = nullptr;
    EXPECT_EQ(engine.text_to_queue(text, head), -1);
    ASSERT_NE(head, nullptr);
    EXPECT_STREQ(head->sz_char, "a");
    EXPECT_EQ(engine.add_section(text, head), -1);
    EXPECT_EQ(head->m_pnext, nullptr);
    mem_stack_release_buf(head, 0, MEM_COMMON, small);
    mem_stack_destroy(small);
}

TEST_F(Sections, AreAppendedToAQueueThatHoldsSome) {
    char number[] = "5";
    char text[] = " May";
    Section* head = nullptr;
    EXPECT_EQ(engine.add_section(number, head), 0);
    EXPECT_EQ(engine.text_to_queue(text, head), 0);
    ASSERT_NE(head->m_pnext, nullptr);
    EXPECT_STREQ(head->m_pnext->m_pnext->sz_char, "May");
    EXPECT_EQ(head->m_pnext->m_pprevious, head);
    char target[SZ_TEXT_MAX_LEN] = {};
    EXPECT_EQ(engine.section_process(head, target), 0);
    EXPECT_STREQ(target, " fifth  May ");
    release(head);
}

}  // namespace
}  // namespace kavi
