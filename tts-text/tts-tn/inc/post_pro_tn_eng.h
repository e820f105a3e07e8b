// The English text-normalisation post-processor: the one object that a host engine owns.
#ifndef KAVI_POST_PRO_TN_ENG_H
#define KAVI_POST_PRO_TN_ENG_H

#include "MemoryStack.h"
#include "ShareObj.h"

namespace kavi {

inline constexpr int WORD_MAX_LEN = 500;              // word and reading buffers
inline constexpr int SZ_TEXT_MAX_LEN = 4096;          // sentence and output texts
inline constexpr int MEMORY_SIZE_TAG_LABEL_TN = 512;  // tag name buffers
inline constexpr int ABBREVIATIONNUMBER = 23;         // rows of the abbreviation table

// The class of a section, by the first byte of its text.
inline constexpr int STRINGSYMBOL = 0;  // an ASCII letter
inline constexpr int NUMBERSYMBOL = 1;  // a digit
inline constexpr int MARKSYMBOL =
    2;  // anything else: blank, punctuation, markup tag, bytes above 127

// One section of a sentence: a run of letters or digits, a whole tag, or one byte. Sections form a
// doubly linked queue, which is passed around by its head.
struct Section {
    char sz_char[WORD_MAX_LEN];  // the text, at most 499 characters
    int m_nmark;                 // its class
    Section* m_pnext;            // null at the tail
    Section* m_pprevious;        // null at the head
};

// ---- The word tables: rows of {key, word}, searched in order; the first equal key wins. ----

// clang-format off

// Abbreviations that end in a full stop, and their expansions. Each is searched for as written, in
// lower case, capitalised and in capitals, in this order.
inline constexpr char s_spec_word_abbrevi[ABBREVIATIONNUMBER][2][20] = {
    {"Dr.",   "doctor"},
    {"nr.",   "near"},
    {"Nr.",   "near"},
    {"ack.",  "acknowledge"},
    {"adv.",  "advantage"},
    {"afr.",  "Africa"},
    {"ft.",   "feet"},
    {"Ft.",   "flat"},
    {"vs.",   "versus"},
    {"Jan.",  "January"},
    {"Feb.",  "February"},
    {"Mar.",  "March"},
    {"Apr.",  "April"},
    {"May.",  "May"},
    {"Jun.",  "June"},
    {"Jul.",  "July"},
    {"Aug.",  "August"},
    {"Sept.", "September"},
    {"Oct.",  "October"},
    {"Nov.",  "November"},
    {"Dec.",  "December"},
    {"B.",    "B"},
    {"e.g.",  "for example"},
};

// Months by number.
inline constexpr char s_number_to_month[21][2][20] = {
    {"1",  "January"},
    {"2",  "February"},
    {"3",  "March"},
    {"4",  "April"},
    {"5",  "May"},
    {"6",  "June"},
    {"7",  "July"},
    {"8",  "August"},
    {"9",  "September"},
    {"10", "October"},
    {"11", "November"},
    {"12", "December"},
    {"01", "January"},
    {"02", "February"},
    {"03", "March"},
    {"04", "April"},
    {"05", "May"},
    {"06", "June"},
    {"07", "July"},
    {"08", "August"},
    {"09", "September"},
};

// Months by abbreviation. The names in the second column are recognised too.
inline constexpr char s_string_to_month[12][2][20] = {
    {"Jan",  "January"},
    {"Feb",  "February"},
    {"Mar",  "March"},
    {"Apr",  "April"},
    {"May",  "May"},
    {"Jun",  "June"},
    {"Jul",  "July"},
    {"Aug",  "August"},
    {"Sept", "September"},
    {"Oct",  "October"},
    {"Nov",  "November"},
    {"Dec",  "December"},
};

// Cardinals. The last row is written for a character that is not a digit.
inline constexpr char s_number_to_char[29][2][15] = {
    {"0",  "zero"},
    {"1",  "one"},
    {"2",  "two"},
    {"3",  "three"},
    {"4",  "four"},
    {"5",  "five"},
    {"6",  "six"},
    {"7",  "seven"},
    {"8",  "eight"},
    {"9",  "nine"},
    {"10", "ten"},
    {"11", "eleven"},
    {"12", "twelve"},
    {"13", "thirteen"},
    {"14", "fourteen"},
    {"15", "fifteen"},
    {"16", "sixteen"},
    {"17", "seventeen"},
    {"18", "eighteen"},
    {"19", "nineteen"},
    {"20", "twenty"},
    {"30", "thirty"},
    {"40", "forty"},
    {"50", "fifty"},
    {"60", "sixty"},
    {"70", "seventy"},
    {"80", "eighty"},
    {"90", "ninety"},
    {"00", " "},
};

// Ordinals. "forth", "twelvth" and "ninteenth" are intended.
inline constexpr char s_number_to_turn[27][2][15] = {
    {"1",  "first"},
    {"2",  "second"},
    {"3",  "third"},
    {"4",  "forth"},
    {"5",  "fifth"},
    {"6",  "sixth"},
    {"7",  "seventh"},
    {"8",  "eighth"},
    {"9",  "ninth"},
    {"10", "tenth"},
    {"11", "eleventh"},
    {"12", "twelvth"},
    {"13", "thirteenth"},
    {"14", "fourteenth"},
    {"15", "fifteenth"},
    {"16", "sixteenth"},
    {"17", "seventeenth"},
    {"18", "eighteenth"},
    {"19", "ninteenth"},
    {"20", "twentieth"},
    {"30", "thirtieth"},
    {"40", "fortieth"},
    {"50", "fiftieth"},
    {"60", "sixtieth"},
    {"70", "seventieth"},
    {"80", "eightieth"},
    {"90", "ninetieth"},
};

// clang-format on

// The steps, the operation for each, and its folder under src/post_pro_tn_eng:
//
//   raw text -> one sentence          eng_text_normalize    sentence/
//   sentence -> speakable text        eng_text_tokenize     tokenize/, readers/, numbers/
//   sections -> speakable text        section_process       the same, for a queue of the host
//   speakable text -> records         eng_text_to_utterance_syllable    utterance/
//
// The tables of markup tags are in markup/, code that all steps share in common/.
//
// The object holds a pointer to the host's arena and no other state. It takes no lock: calls that
// share an arena must not overlap. Working memory is given back before a call returns; the records
// of an utterance belong to the host. Scratch buffers are on the stack, so they cannot be refused.
//
// No argument may be null, unless an operation says so. Texts are NUL-terminated and may hold any
// other bytes.
class PostProTnEng {
  public:
    PostProTnEng();
    ~PostProTnEng() = default;

    // Binds the engine to the host's arena, which must outlive its use here. May be called again.
    // Without it, eng_text_tokenize and the operations that make sections or records fail as if the
    // arena refused every request.
    void init(mem_stack_handle mem_handle);

    // ---- Raw text to one sentence: sentence/ ----

    // Cuts the first sentence off `sz_source_text`: through the first "." "?" "!" ";" "," or ":"
    // that ends one, or to where it has more than 4086 bytes, or all of it. Abbreviations are
    // expanded. Spans that are open at the cut are closed in the sentence and opened again before
    // the rest.
    //   sz_source_text  read only
    //   sz_target_text  4096 bytes, zero-filled; receives the sentence
    //   sz_next_text    4096 bytes that hold a text, normally ""; the open tags, then the rest of
    //                   the source are appended, each of them whole or not at all
    // Always 0. When sz_next_text grew, text remains: call again with a copy of it. Malformed
    // markup (a closing tag that closes nothing or another kind, an eleventh open span, an opening
    // tag above 199 characters, no room for a closing tag) ends the sentence there, with its spans
    // open, and the rest of the source is dropped.
    int eng_text_normalize(char* sz_source_text, char* sz_target_text, char* sz_next_text);

    // Expands the abbreviation that the first "." of `sz_source_text` ends. `sz_target`, 4096
    // bytes, holds the text written so far, through that "."; there the expansion replaces the
    // abbreviation. Returns the position in the source after the abbreviation. Null when there is
    // no abbreviation: a final "." of the target is removed and `*c_stop` set to 1. Null, with
    // `*c_stop` unchanged, when the expansion does not fit.
    char* abbreviation(char* sz_source_text, char* sz_target, char* c_stop);

    // ---- Sentence to speakable text: tokenize/, readers/, numbers/ ----

    // Appends the speakable text of one sentence to `sz_target_text`, 4096 bytes that hold a text,
    // normally "". 0 on success. -1 when the text did not fit: the target keeps the part that did.
    // -1, with the target unchanged, when the sentence is not empty and the arena refuses a block
    // of sizeof(Section), or before init.
    int eng_text_tokenize(char* sz_source_text, char* sz_target_text);

    // Cuts a text into sections and appends them, in order, to the queue with head `sz_section`,
    // which may be null. 0, or -1 when the arena refused one; those before it stay in the queue.
    // The caller owns the sections and gives each back with mem_stack_release_buf.
    int text_to_queue(char* sz_source_text, Section*& sz_section);

    // Appends one section with the text `sz_source`, cut at 499 characters, to the queue with head
    // `p_section`, which may be null. An empty text appends none. 0, or -1 when the arena refused
    // the block.
    int add_section(char* sz_source, Section*& p_section);

    // Appends the speakable text of the queue with head `p_section`, which may be null, to
    // `sz_target_text`, 4096 bytes that hold a text. Texts and classes of sections may change,
    // links do not. 0, or -1 when the text did not fit: the target keeps the part that did.
    int section_process(Section* p_section, char* sz_target_text);

    // ---- Speakable text to records: utterance/builder ----

    // Makes an array with one record for each word of `sz_source_text` (read only, of any length)
    // and with the punctuation, break times and attributes that its tags give the words. Record 0,
    // the head, has no word; it has the marks and break time before the first word. `p_utt`
    // receives the array, `n_utt` the number of records: the words and the head.
    //
    // The array and the `syllable` and `zhuyin` of each record belong to the caller, who gives them
    // back with their sizes: `n_utt` records, `syl_len` and `zy_len` bytes.
    //
    // 0 on success. -1 with `p_utt` null and `n_utt` 0 when the arena refused the array. -1 with
    // both set when it refused the storage of a word, or when the names or the values of nested
    // spans are more than 199 characters: the records before that are complete, the others zero.
    int eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt, int& n_utt);

    // ---- One record at a time: utterance/records, utterance/attributes ----
    // `utt` is an array as above, `n` the number of records written so far, the head included.
    // Values are cut to 19 characters.

    // Stores a word of at most 499 characters in record `n`, with the default pause and no
    // attributes. False when the arena refused its storage: `syllable` is null, no block is kept.
    bool insert_syllable(int n, UtteranceSyllable* utt, const char* sz_char_buf);

    // Each sets one attribute of record `n` - 1 and returns true. An effect is appended to the
    // field: false, with the field unchanged, when it does not fit. A prosody list such as
    // «rate="2" pitch="low"» sets the attributes it names: false at the first unknown name, with
    // those before it set.
    bool insert_breaktime(int n, UtteranceSyllable* utt, char* time_str);
    bool insert_emphasis_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_poem_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_quill_effect_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_prosody_in(int n, UtteranceSyllable* utt, const char* value_str);

    // Sets the attributes that nested spans give record `n` - 1. `tag_type` lists their names,
    // `value_str` their values, outermost first, separated by tabs. False at the first pair that
    // cannot be applied, with those before it applied.
    bool insert_ssml_info_in(int n, UtteranceSyllable* utt, const char* value_str,
                             const char* tag_type);

    // Stores the words of the text `buffer_target` in the records from `n` on, with the attributes
    // of these spans, and advances `n` past them. False when the arena refused the storage of a
    // word or a list is more than 199 characters; the words stored so far stay.
    bool insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                          char* buffer_target, const char* tag_type);

    // ---- Scanning tagged text: utterance/scanner, utterance/builder ----

    // Reads one character or one tag of `p_word_text` at offset `i`, which is less than its length,
    // and advances `i`:
    //   sz_char_buf  500 bytes: the word so far, `j` characters; terminated when it is complete
    //   sz_tag       512 bytes: the name of the tag that was read; unchanged when none was
    //   sz_value, sz_target  each as large as the text: the value and the content of that tag
    //   mark         1 when this completed the word, else 0
    // After a completed word the caller empties the buffers and sets `j` to 0; after a tag it
    // empties those it has used. Always true.
    bool filter_text(char* p_word_text, char* sz_char_buf, char* sz_tag, char* sz_value,
                     char* sz_target, int& i, int& j, int& mark);

    // Adds the number of words in the text `buffer_target`, nested spans included, to `n`. Always
    // true.
    bool count_embed_word(int& n, char* buffer_target);

  private:
    friend struct PostProTnEngPeer;  // lets the tests reach the operations below

    // The readers and number words as single operations: wrappers of the functions of the same name
    // in readers/ or of those in numbers/number_words.h.
    //
    // Tests (..._decide, ..._def) return 1 or 0. Readers append to a text in a 500-byte buffer,
    // `sz_target_text`; words that do not fit are cut. A reader of sections returns the last
    // section it consumed, any other the buffer.

    // Replaces every character outside tags that is not a letter by a blank and cuts the blanks at
    // the end of the text.
    void re_regular(char* sz_source_text);

    // ---- readers/telephone ----
    // Whether a telephone number may begin here: digits, "(", "-" or a blank.
    int phone_number_decide(Section* p_section);
    // Appends "area code " and reads at most nine sections, up to the first word. A word that is
    // the first section is consumed but not read.
    Section* phone_number_read(Section* p_section, char* sz_target_text);

    // ---- readers/dates, readers/months ----
    int month_def(char* sz_source);
    // Replaces the text of the buffer by the full name of the month, or by the source itself.
    char* month_read(char* sz_source_text, char* sz_target_text);
    int data_decide(Section* p_section);
    // Requires data_decide. Returns the year's section.
    Section* data_number(Section* p_section, char* sz_target_text);
    // Appends a year of two or four digits, nothing for any other length.
    char* year_read(char* sz_source_text, char* sz_target_text);

    // ---- readers/amounts: each reader requires its test ----
    int fraction_decide(Section* pSection);
    Section* fraction_number(Section* pSection, char* sz_target_text);
    int decimal_decide(Section* pSection);
    Section* decimal_number(Section* psection, char* sz_target_text);
    // Whether a "$" follows the amount that begins here.
    int currency_decide(Section* pSection);
    // An amount after or before a "$". Null, with its words appended, when the queue ends after a
    // second or third comma.
    Section* currrency_read(Section* pSection, char* sz_target_text);

    // ---- readers/clock_times ----
    // 0: no time; 1: hours and minutes; 2: with seconds. time_number expects this form in m_nmark.
    int time_decide(Section* pSection);
    // Null, with nothing appended, when a part is missing, m_nmark is no form, or the arena refuses
    // a block of 500 bytes.
    Section* time_number(Section* psection, char* sz_target_text);

    // ---- readers/number_tokens, readers/words ----
    // Null, with the words so far appended, when the queue ends after a second or third comma.
    Section* str_number(Section* p_section, char* sz_target_text);
    // Returns the suffix. In a section of more than three digits the last three become "000".
    Section* turn(Section* p_section, char* sz_target_text);
    // 1 for a word in capitals, which replaces the text of the buffer. 0 for any other: nothing is
    // written.
    int process_upper_case(Section* m_ptemp_section, char* sz_target);

    // ---- readers/marks: `sz_target` is the 4096-byte output itself ----
    // Reads a telephone number that begins with the "(" and moves `p_temp_section` to its last
    // section; otherwise appends the mark, or nothing before a number. False when the output is
    // full.
    bool process_bracket(Section*& p_temp_section, char* sz_target);
    // Reads a telephone number that begins with the "+" and returns its last section; otherwise
    // returns the "+", with "add" appended after a number. Null when the output is full.
    Section* process_plus(Section* p_temp_section, char* sz_target);
    // Replaces the letters of a contraction in the section after the apostrophe by their word.
    // Appends nothing and returns the apostrophe.
    Section* process_single_quote(Section* p_temp_section, char* sz_target);

    // ---- numbers/ ----
    // Appends the first three digits, or fewer, as a cardinal.
    char* number_read(char* sz_source_text, char* sz_target_text);
    // Appends digit by digit.
    char* number_to_normal(char* sz_source_text, char* sz_target_text);
    // Whether the text has only digits; the empty text does.
    int number_def(char* sz_source);
    // Appends one to three digits as an ordinal. Null, with nothing appended, for any other length.
    char* str_turn(char* sz_source_text, char* sz_target_text);
    // Replaces the text of the buffer by the number with scale words: of more than 12 digits, the
    // first four groups.
    char* number_to_string(char* sz_source_text, char* sz_target_text);

    // ---- utterance/: both change record `n` - 1 and return true ----
    // Appends the mark of this name. An unknown name takes an entry, which stays PUNC_NULL_FE; an
    // eleventh mark is dropped.
    bool insert_punc(int n, UtteranceSyllable* utt, char* punc_str);
    // Forces the pause of `ch`, one of "& |#*+"; "*" changes nothing.
    bool insert_pause(int n, UtteranceSyllable* utt, char ch);

    // Reads the tag at `sz_text`, a "<": its name into `sz_tag` (512 bytes), its value and its
    // content (each as large as the text). Returns the position after the tag and its content.
    // Null, with name and value up to a ">", when it is not a tag of the language or has no ">".
    char* parse_tag(char* sz_text, char* sz_tag, char* sz_value, char* sz_target);

    mem_stack_handle _mem_handle;
};

}  // namespace kavi

#endif  // KAVI_POST_PRO_TN_ENG_H
