#include "engine_peer.h"

namespace kavi {
namespace {

using Peer = PostProTnEngPeer;

// Each row is read through the dispatcher: a wrong blank, a wrong consumed section or a lost tag
// shows in the speakable text.
class Readers : public EngineTest {
  protected:
    struct Row {
        const char* sentence;
        const char* speakable;
    };
    void expect(const std::vector<Row>& rows) {
        for (const Row& row : rows)
            EXPECT_EQ(tokenize(row.sentence), row.speakable) << row.sentence;
    }
};

TEST_F(Readers, TelephoneNumbers) {
    expect({
        {"Tel. 555-0100", "telephone number area code five five five  zero one zero zero"},
        {"Tel.800-555-0100x",
         "telephone number area code eight hundred five five five  zero one zero "
         "zero   x"},
        {"Tel.0900-5", "telephone number area code nine hundred five"},
        {"Tel. 800", "telephone number area code eight zero zero"},
        {"Tel. 555-0100 today",
         "telephone number area code five five five  zero one zero zero   today"},
        {"Tel. 1-2-3-4-5", "telephone number area code one  two  three  four    fifth"},
        {"Tel. 555.", "telephone number area code five five five"},
        {"Tel.(5", "telephone number area code five"},
        {"Tel", "telephone"},
        {"Tel.", "telephone"},
        {"Tel.no", "telephone no"},
        {"Tel no", "telephone no"},
        {"tel. 5", "tel <punc=ju>  five"},
    });
    for (const char* yes : {"5", "(", "-", " "})
        EXPECT_EQ(test(Peer::phone_number_decide, yes), 1);
    for (const char* no : {"a", ")", "+", ".", "\t", ""}) {
        EXPECT_EQ(test(Peer::phone_number_decide, no), 0) << no;
    }
}

TEST_F(Readers, LongTelephoneNumbersAreCutAfterAWholeWord) {
    const std::string reading = tokenize("Tel." + std::string(100, '7') + "-5 x");
    EXPECT_EQ(reading.find("telephone number area code seven"), 0U);
    EXPECT_EQ(reading.substr(reading.size() - 13), "seven seven x");
}

TEST_F(Readers, MonthsAndDates) {
    expect({
        {"Sept 5", "September  fifth"},
        {"5 May x", " fifth  May x"},
        {"May 5 x", "May  fifth  x"},
        {"5 apples", " five  apples"},
        {"Sep sept JAN", "Sep sept JAN"},
        {"3/1/2020 x", " the  third  of January  two thousand  twenty   x"},
        {"3-1/2020", " the  third  of January  two thousand  twenty"},
        {"3/Jan/99", " the  third  of January two thousand  ninety nine"},
        {"12/25/2020", " the  twelvth  of     two thousand  twenty"},
        {"1234/1/15", " the  of January two thousand  fifteen"},
        {"3/1/June", " the  third  of January June"},
        {"3/1/2020th", " the  third  of January  two thousand  twenty   th"},
    });
    for (const char* yes : {"9", "09", "12", "Sept", "September"}) {
        EXPECT_EQ(test(Peer::month_def, yes), 1) << yes;
    }
    for (const char* no : {"13", "00", "Sep", "sept", "JAN", "", "1a"}) {
        EXPECT_EQ(test(Peer::month_def, no), 0) << no;
    }
    EXPECT_EQ(call(Peer::month_read, "Sep"), "Sep");
    EXPECT_EQ(call(Peer::month_read, "05"), "May");
    for (const char* no : {"3-1-2020", "3/1", "3/1/", "3/a/2020", "3.1/2020"}) {
        EXPECT_EQ(test(Peer::data_decide, no), 0) << no;
    }
}

TEST_F(Readers, Years) {
    const Row rows[] = {
        {"1999", " nineteen  ninety nine "},
        {"1905", " nineteen  zero  five "},
        {"2015", " two thousand  fifteen "},
        {"2005", " two thousand  zero  five "},
        {"1900", " nineteen   "},
        {"15", "two thousand  fifteen "},
        {"123", ""},
        {"12345", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(call(Peer::year_read, row.sentence), row.speakable) << row.sentence;
    }
}

TEST_F(Readers, FractionsAndDecimals) {
    expect({
        {"3/4 x", " three  over  four   x"},
        {"3/4/x", " three  over  four   divide x"},
        {"5/ab", " five  divide ab"},
        {"3.14 x", " three  point one four  x"},
        {"3.05", " three  point zero five"},
        {"1.2.3", " one  point two  <punc=ju>  third"},
    });
    const std::string decimals = tokenize("3." + std::string(100, '7') + " x");
    EXPECT_EQ(decimals.substr(decimals.size() - 13), "seven seven x");
}

TEST_F(Readers, Money) {
    expect({
        {"$5.50", " five dollars  fifty  cents"},
        {"$1.01", " one dollar  one cent"},
        {"$0.50 x", "   fifty  cents  x"},
        {"$1,000 x", " one  thousand   dollars  x"},
        {"$1", " one dollars"},
        {"$5 x", " five dollars  x"},
        {"$5.", " five dollars  <punc=ju>"},
        {"$5.ab", " five dollars  <punc=ju> ab"},
        {"$5.<poem=x>1</poem>", " five dollars  <punc=ju> <poem=x>  one  </poem>"},
        {"$5.00", " five dollars   cent"},
        {"$5.1234", " five dollars one hundred  and twenty three cents"},
        {"$1,234,", " one  million two hundred  and thirty four  thousand dollars"},
        {"$ 5", "  five"},
        {"5$", " five dollars"},
        {"5.50$ x", " five dollars  fifty  cents   x"},
    });
    for (const char* yes : {"5$", "5.50$", "1,000.5$", "$"})
        EXPECT_EQ(test(Peer::currency_decide, yes), 1);
    for (const char* no : {"5 $", "5", "5a$", ""})
        EXPECT_EQ(test(Peer::currency_decide, no), 0) << no;
}

TEST_F(Readers, ClockTimes) {
    expect({
        {"10:30 x", " ten   thirty   x"},
        {"1:00:05", " one  hour    zero minute  five  seconds"},
        {"10:30'15 x", " ten  hours  thirty   minutes  fifteen  seconds  x"},
        {"0:1:1", "   zero hour  one  minute  one  second"},
        {"12:00", " twelve"},
        {"99:99:99", " ninety nine  hours  ninety nine  minutes  ninety nine  seconds"},
        {"10:ab c", " ten  ab c"},
        {"10:30:ab c", " ten  hours  thirty   minutes ab c"},
        {"<poem=x>10:</poem>", "<poem=x>  ten  </poem>"},
        {"10:- c", " ten   c"},
        {"a 10:", "a"},  // incomplete: nothing of it is read
        {"a 10:30:", "a"},
    });
    for (const auto& [text, form] : std::vector<std::pair<const char*, int>>{{"10", 0},
                                                                             {"10 :", 0},
                                                                             {"10:", 1},
                                                                             {"10:ab", 1},
                                                                             {"10:30", 1},
                                                                             {"10:30:", 2},
                                                                             {"10:30'", 2},
                                                                             {"10:30-", 1}}) {
        EXPECT_EQ(test(Peer::time_decide, text), form) << text;
    }
    Section lone = {"10", 5, nullptr, nullptr};
    char target[WORD_MAX_LEN] = {};
    EXPECT_EQ((engine.*Peer::time_number)(&lone, target), nullptr);
}

TEST_F(Readers, SeparatorsAndOrdinalSuffixes) {
    expect({
        {"1,234 x", " one  thousand two hundred  and thirty four  x"},
        {"1,234th x", " one  thousand two hundred  and thirty forth  x"},
        {"12,345,678",
         " twelve  million three hundred  and forty five  thousand six hundred  and "
         "seventy eight"},
        {"1,234,567th",
         " one  million two hundred  and thirty four  thousand five hundred  and sixty "
         "seventh"},
        {"1,234,567,890 x",
         " one  billion two hundred  and thirty four  million five hundred  and "
         "sixty seven  thousand eight hundred  and ninety   x"},
        {"1,234,", " one  million two hundred  and thirty four  thousand"},
        {"1,234,ab", " one  million two hundred  and thirty four  thousand ab"},
        {"<poem=x>1,234,</poem> a",
         "<poem=x>  one  million two hundred  and thirty four  thousand </poem> a"},
        {"1,234,- x", " one  million two hundred  and thirty four  thousand  x"},
        {"50,13 x", " fifty    thirteen  x"},
        {"5,12th x", " five  th x"},
        {"5,abc", " five  thousand abc"},
        {"5,", " five"},
        {"21st x", " twenty first  x"},
        {"3rd", " third"},
        {"1th 2st", " first   second"},
        {"2nd", " two  nd"},
        {"1234th x", " one  thousand two hundred  and thirty forth  x"},
        {"1000000th", " one  million    thousand"},
        {"1234567890123th",
         " one  billion two hundred  and thirty four  million five hundred  and "
         "sixty seven  thousand one hundred  and twenty third"},
        {"12345", " twelve  thousand three hundred  and forty five"},
        {"NASA IBM", "NASA IBM"},
    });
}

TEST_F(Readers, BracketsPlusAndApostrophes) {
    expect({
        {"(a) b", "<punc=zuokuo>a <punc=youkuo>b"},
        {"( a", "<punc=zuokuo>a"},
        {"(", "<punc=zuokuo>"},
        {"(86) 10-12345678 x",
         "country code  eighty six  area code one zero  one two three four five "
         "six seven eight   x"},
        {"(5)", " five  <punc=youkuo>"},
        {"(5", " five"},
        {"(5a", " five  a"},
        {"(2) cats", "country code  two  area code  cats"},
        {"30+40", " thirty   add  forty"},
        {"3 + 4", " three   four"},
        {"+86 10 5 x", "country code  eighty six  area code one zero  five   x"},
        {"+86", " eighty six"},
        {"+a", "a"},
        {"I'm it's we're I'll don't I've", "I am it is we are I will don not I ve"},
        {"'", ""},
    });
}

}  // namespace
}  // namespace kavi
