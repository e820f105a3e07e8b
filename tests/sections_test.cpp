#include "engine_peer.h"

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

using Texts = std::vector<std::string>;

TEST_F(Sections, CutAtClassesBlanksAndTags) {
    const std::string long_tag = "<punc=" + std::string(494, 'x') + ">";  // one more than a section
    const struct {
        const char* text;
        Texts sections;
    } rows[] = {
        {"", {}},
        {"It costs $25.50!", {"It", " ", "costs", " ", "$", "25", ".", "50", "!"}},
        {"abc123def", {"abc", "123", "def"}},
        {"Hello.", {"Hello", "."}},
        {"a  b\t", {"a", " ", " ", "b", "\t"}},
        {"\xc3\xa9t", {"\xc3", "\xa9", "t"}},
        {"<poem=1>Hi</poem>", {"<poem=1>", "Hi", "</poem>"}},
        {"<punc=english>Hi", {"<punc=english>", "Hi"}},
        {"<pause=3>", {"<", "pause", "=", "3", ">"}},
        {"<poem=1", {"<", "poem", "=", "1"}},
        {"a<", {"a", "<"}},
    };
    for (const auto& row : rows) EXPECT_EQ(cut(row.text), row.sections) << row.text;
    EXPECT_EQ(cut(long_tag), (Texts{"<", "punc", "=", std::string(494, 'x'), ">"}));
    EXPECT_EQ(cut(long_tag.substr(1)), (Texts{"punc", "=", std::string(494, 'x'), ">"}));
    const std::string longest_tag = "<punc=" + std::string(492, 'x') + ">";
    EXPECT_EQ(cut(longest_tag), Texts{longest_tag});
}

TEST_F(Sections, LongRunsAreCutAt499) {
    const Texts texts = cut(std::string(1000, 'a'));
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].size(), 499U);
    EXPECT_EQ(texts[1].size(), 499U);
    EXPECT_EQ(texts[2].size(), 2U);
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
    EXPECT_EQ(tokenize("a b c", -1), "");
    mem_stack_destroy(small);
    engine.init(nullptr);
    EXPECT_EQ(tokenize("a", -1), "") << "an unbound engine fails, and that is all";
}

}  // namespace
}  // namespace kavi
