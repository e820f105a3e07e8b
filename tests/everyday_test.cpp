// A user's readings and everyday English, before the engine. What the rules read is in
// tests/quality.

#include <gtest/gtest.h>

#include <random>

#include "expect_table.h"
#include "host_reader.h"
#include "tts_everyday.h"
#include "tts_explain.h"

namespace kavi {
namespace {

ReadText read_with(const TextRewriter& rewriter, const std::string& text) {
    TtsHost host;
    host.rewrite_by(&rewriter);
    return read_by_layer(host, text);
}

Everyday all_classes() {
    Everyday everyday(nullptr);
    everyday.set_all(true);
    return everyday;
}

Lexicon lexicon_of(const std::string& lines) {
    Lexicon lexicon;
    std::string error;
    EXPECT_TRUE(lexicon.add("my.txt", lines, error)) << error;
    return lexicon;
}

TEST(Lexicon, RewritesAsInTheTable) {
    const Lexicon lexicon = lexicon_of(
        "\xef\xbb\xbf  km \tkilometres\r\n  # readings\n\nkm/h\tkilometres per hour\n№\tnumber\n"
        "New York\tbig apple\nNew York City\tthe city\nkavi\tkahvee\tany case\n"
        "Mr.\tmister\n:-)\tsmile\n☺\tsmiling\ngr\tgift\na b a b\tlong\na b a b c e\tno\n");
    const Everyday everyday(&lexicon);
    expect_table("lexicon", [&](const std::string& text) {
        return TableRow{text, rewritten(everyday, text)};
    });
}

TEST(Lexicon, BadLinesAreToldAndTheGoodOnesAreFound) {
    expect_table("bad_lexicons", [](const std::string& lines) {
        Lexicon lexicon;
        std::string error = "of an earlier file";
        EXPECT_FALSE(lexicon.add("my.txt", lines, error));
        return TableRow{lines, error, rewritten(Everyday(&lexicon), "a b km")};
    });
}

TEST(Lexicon, ItsWordsWinOverTheRules) {
    const Lexicon lexicon = lexicon_of(
        "km\tkilometers\n$\tbucks\n€\tbig euros\nMay\tmei\n°C\tcentigrade\ngr\tgift\nMr\tmester\n"
        "m\tmetre\np\tpence\n30\thalf\n👍\tthumbs up\n🏽\ttone\nZoë\tzo ee\n№\tnumber\n");
    Everyday everyday(&lexicon);
    everyday.set_all(true);
    expect_table("own_words", [&](const std::string& text) {
        return TableRow{text, rewritten(everyday, text)};
    });
}

TEST(Lexicon, ReadingsStandAtTheirPlacesAcrossSentences) {
    const Lexicon lexicon = lexicon_of("Mr.\tmister\nkm\tkilometres\n");
    const Everyday everyday(&lexicon);
    const ReadText read = read_with(everyday, "Mr. X ran 5km. <poem=km>km</poem></prosody> é");
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(read.places, (std::vector<std::string>{"mister=Mr.", "X=X", "ran=ran", "five=5",
                                                     "kilometres=km", "kilometres=km"}));
    ASSERT_EQ(read.diagnostics.size(), 2U);
    EXPECT_EQ(read.diagnostics[0].offset, 33U);
    EXPECT_EQ(read.diagnostics[1].offset, 44U);
    EXPECT_EQ(read.diagnostics[1].length, 2U);
}

TEST(Lexicon, IsNamedWithItsLineByAnExplanation) {
    Lexicon lexicon = lexicon_of("# a\nMr.\tmister\n");
    std::string error;
    ASSERT_TRUE(lexicon.add("more.txt", "km\tmiles\n", error)) << error;
    Everyday everyday(&lexicon);
    everyday.set_all(true);
    TtsHost host;
    host.rewrite_by(&everyday);
    std::string rules;
    host.read(
        "Mr. 5 km",
        [&](const HostSentence& sentence) {
            explain(sentence, "Mr. 5 km",
                    [&](const ExplainedRun& run) { rules.append(run.rule) += '|'; });
            return true;
        },
        nullptr);
    EXPECT_EQ(rules, "lexicon my.txt:2|not spoken|everyday: units more.txt:1|");
}

TEST(Everyday, WithoutAnyClassEveryByteIsAsWithoutIt) {
    const Everyday none(nullptr);
    std::mt19937 random(5);
    const std::vector<TableRow> pieces = read_table("pieces");
    for (int round = 0; round < 200; ++round) {
        std::string text;
        while (text.size() < 500) text += pieces[random() % pieces.size()][0];
        const ReadText with = read_with(none, text);
        const ReadText without = read_by_layer(text);
        EXPECT_EQ(with.normalized, without.normalized);
        EXPECT_EQ(with.records, without.records);
        EXPECT_EQ(with.sources, without.sources);
        EXPECT_EQ(with.places, without.places);
        EXPECT_EQ(with.diagnostics.size(), without.diagnostics.size());
    }
}

TEST(Everyday, PlacesHoldWhateverIsRewritten) {
    const Everyday everyday = all_classes();
    std::mt19937 random(6);
    std::vector<TableRow> pieces = read_table("pieces");
    for (const char* piece :
         {"$1.5 million ", "5 km ", "Mr. ", "won't ", "1990s ", "5:30 p.m. ", "bob@example.com ",
          "Henry VIII ", "caf\xc3\xa9 ", "left. ", "\xe2\x80\x93", "3/1/2020 ", "(212) 555-0199 ",
          "\xc2\xbd", "10-20% ", "\xe2"}) {
        pieces.push_back({piece});
    }
    for (int round = 0; round < 500; ++round) {
        std::string text;
        while (text.size() < random() % 600) text += pieces[random() % pieces.size()][0];
        const ReadText read = read_with(everyday, text);
        EXPECT_EQ(read.fault, "") << text;
        EXPECT_TRUE(read.all_read) << text;
    }
}

TEST(Everyday, LongSentence_IsCutBetweenRewritings) {
    const Everyday everyday = all_classes();
    std::string text;
    for (int i = 0; i < 200; ++i) text += "It cost $1,234,567 and ";
    const std::vector<std::string> words = read_with(everyday, text).words;
    EXPECT_EQ(words.size(), 200U * 17);
    for (const std::size_t capacity : {0U, 30000U, 15000U}) {
        TtsHost host(capacity);
        host.rewrite_by(&everyday);
        const ReadText read = read_by_layer(host, text);
        EXPECT_EQ(read.fault, "") << capacity;
        EXPECT_EQ(read.words, words) << capacity;
        for (const std::string& source : read.sources) {
            EXPECT_EQ(source.find_first_of("123456"), source.find("1,234,567")) << capacity;
        }
    }
    TtsHost small(3200);  // does not hold the words of the number
    small.rewrite_by(&everyday);
    const ReadText read = read_by_layer(small, text);
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(read.words, words);
}

// Reads "x" as words that a rewriter should not have, and what is inside of a tag.
class BadRewriter final : public TextRewriter {
  public:
    bool next(std::string_view text, Rewriting& rewriting) const override {
        const std::size_t from = rewriting.source.offset + rewriting.source.length;
        const std::size_t at = text.find('x', from);
        if (at == std::string_view::npos) return false;
        rewriting.source = {at, 1};
        rewriting.words.assign("<poem=a>", 8);
        for (int i = 0; i < 6000; ++i) rewriting.words += std::string("\0 ab c", 7);
        rewriting.by = {"bad"};
        return true;
    }
};

TEST(Rewriter, LongWordsWithMarkup_AreReadWithoutIt) {
    const BadRewriter bad;
    const ReadText read = read_with(bad, "<poem=xx>x y x</poem>");
    EXPECT_TRUE(read.all_read);
    EXPECT_EQ(read.fault, "");
    EXPECT_EQ(read.words.size(), 2U * (6000 * 2 + 4) + 1);
    EXPECT_EQ(std::count(read.words.begin(), read.words.end(), "ab"), 2 * 6000);
    EXPECT_TRUE(std::all_of(read.records.begin(), read.records.end(), [](const std::string& r) {
        return r.find("poem=a") == std::string::npos;
    }));
}

TEST(Rewriter, WordsThatWouldMakeATag_MakeNone) {
    const ReadText read = read_with(all_classes(), "<poem=a>x</pro'sody>y</poem> a<9 z");
    EXPECT_EQ(read.fault, "");
    EXPECT_TRUE(read.all_read);
    EXPECT_EQ(read.words,
              (std::vector<std::string>{"x", "prosody", "larger", "y", "a", "nine", "z"}));
}

TEST(Everyday, ReadsNoMoreThanItShould) {
    const Everyday everyday = all_classes();
    for (const char* table : {"everyday_numbers", "everyday_names"}) {
        expect_table(table, [&](const std::string& text) {
            return TableRow{text, rewritten(everyday, text)};
        });
    }
}

TEST(Everyday, WordBeyondWhatARuleSees_IsLeft) {
    const std::string word(300, 'a');
    EXPECT_EQ(rewritten(all_classes(), "www." + word + ".com"), "www." + word + " dot com");
}

TEST(Everyday, EachClassIsSwitchedByItself) {
    const std::pair<EverydayClass, const char*> texts[] = {
        {EverydayClass::titles, "Mr. X"},      {EverydayClass::contractions, "won't"},
        {EverydayClass::currencies, "5 EUR"},  {EverydayClass::times, "5:30 pm"},
        {EverydayClass::roman, "Henry VIII"},  {EverydayClass::letters, "caf\xc3\xa9"},
        {EverydayClass::shields, "He left."},  {EverydayClass::years, "May 5"},
        {EverydayClass::addresses, "a@b.com"}, {EverydayClass::units, "5 km"},
        {EverydayClass::numbers, "7"},         {EverydayClass::marks, "C++"}};
    for (const auto& [everyday_class, text] : texts) {
        Everyday everyday(nullptr);
        everyday.set(everyday_class, true);
        EXPECT_NE(rewritten(everyday, text), text);
        const std::string all = rewritten(all_classes(), text);
        everyday.set_all(true);
        everyday.set(everyday_class, false);
        EXPECT_NE(rewritten(everyday, text), all) << name_of(everyday_class);
        EXPECT_EQ(everyday_class_of(name_of(everyday_class)), everyday_class);
    }
    EXPECT_FALSE(everyday_class_of("none"));
}

TEST(Everyday, AmericanDatesPutTheMonthFirst) {
    Everyday everyday = all_classes();
    everyday.set_american_dates(true);
    EXPECT_EQ(rewritten(everyday, "3/1/2020"), "March first twenty twenty");
    everyday.set(EverydayClass::years, false);
    EXPECT_EQ(rewritten(everyday, "3/1/2020").find("March"), std::string::npos);
}

}  // namespace
}  // namespace kavi
