// Chapters and verses of the Bible.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Appends the words for "3:16" at offset `ahead`. Returns its length, 0 if none: verses have no
// leading zero.
std::size_t say_verse(const Cursor& cursor, std::size_t ahead, std::string& out) {
    constexpr std::size_t LONGEST = 3;
    const std::string_view chapter = cursor.digits(ahead);
    const std::size_t colon = ahead + chapter.size();
    const std::string_view verse = cursor.digits(colon + 1);
    const std::size_t end = colon + 1 + verse.size();
    const bool is_verse = !chapter.empty() && chapter.size() <= LONGEST && chapter[0] != '0' &&
                          cursor.peek(colon) == ':' && !verse.empty() && verse.size() <= LONGEST &&
                          verse[0] != '0' && !cursor.is_joined(end) && cursor.peek(end) != ':';
    if (!is_verse) return 0;
    say_cardinal(chapter, out);
    say_cardinal(verse, out);
    return end - ahead;
}

bool is_time_of_day(const Cursor& cursor, std::size_t ahead) {
    const char first = to_lower(cursor.peek(ahead + cursor.blanks(ahead)));
    const char second = to_lower(cursor.peek(ahead + cursor.blanks(ahead) + 1));
    return (first == 'a' || first == 'p') && (second == 'm' || second == '.');
}

// "Gen. 6", "Ps. 23"
void read_chapter(const Cursor& cursor, const Row& book, std::size_t stop, Found& found) {
    const std::string_view chapter = cursor.digits(stop + 1);
    const std::size_t end = stop + 1 + chapter.size();
    const bool goes_on =
        cursor.is_joined(end) || (cursor.peek(end) != ' ' && is_digit(cursor.peek(end + 1)));
    const bool is_one = book.kind == Kind::before_number && cursor.peek(stop - 1) == '.' &&
                        !chapter.empty() && chapter.size() <= 3 && !goes_on;
    if (!is_one) return;
    found.say_name(0, book.written().size(), book.spoken());
    say_cardinal(chapter, found.words);
    found.length = end;
}

}  // namespace

// "Gen. 1:1 to 2:3", "John 3:16-18"
void read_scripture(const Cursor& cursor, Found& found) {
    if (!is_upper(cursor.peek())) return;
    const std::string_view name = cursor.letters();
    const Row* book = find(BOOKS, name);
    if (book == nullptr) return;
    const std::size_t stop = name.size() + (cursor.peek(name.size()) == '.' ? 1 : 0);
    if (cursor.peek(stop) != ' ') return;
    std::string words;
    const std::size_t length = say_verse(cursor, stop + 1, words);
    std::size_t end = stop + 1 + length;
    if (length == 0) return read_chapter(cursor, *book, stop, found);
    if (is_time_of_day(cursor, end)) return;
    found.say_name(0, name.size(), book->spoken());
    say(words, found.words);
    const std::size_t dash = cursor.dash(end);
    const std::size_t link = cursor.starts_with(" to ", end) ? 4 : dash;
    words.clear();
    if (const std::size_t last = link > 0 ? say_verse(cursor, end + link, words) : 0; last > 0) {
        say("to", found.words);
        say(words, found.words);
        end += link + last;
    } else if (const std::string_view verse = cursor.digits(end + dash);
               dash > 0 && !verse.empty() && verse.size() < 4) {
        say("to", found.words);
        say_cardinal(verse, found.words);
        end += dash + verse.size();
    }
    found.length = end;
}

}  // namespace kavi::everyday
