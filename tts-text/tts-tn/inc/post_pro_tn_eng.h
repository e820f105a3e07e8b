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

// The class of a section, decided by the first byte of its text.
inline constexpr int STRINGSYMBOL = 0;  // an ASCII letter
inline constexpr int NUMBERSYMBOL = 1;  // a digit
inline constexpr int MARKSYMBOL =
    2;  // anything else: blank, punctuation, markup tag, bytes above 127

// One token of a sentence. A queue of them is known by its head.
struct Section {
    char sz_char[WORD_MAX_LEN];  // the text, at most 499 characters
    int m_nmark;                 // its class
    Section* m_pnext;            // null at the tail
    Section* m_pprevious;        // null at the head
};

// ---- The word tables: {key, word} rows, searched in row order; the first equal key wins. ----

// clang-format off

// Abbreviations that end in a full stop. Each is found as written, in lower case, capitalised and
// in capitals, in this order.
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

// Month numbers.
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

// Month abbreviations; the names in the second column are month names too.
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

// Cardinal words. The last row is what stands for anything but a digit.
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

// Ordinal words. "forth", "twelvth" and "ninteenth" are meant.
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

// The data's way, and the folder under src/post_pro_tn_eng that holds each step:
//
//   raw text -> one sentence          eng_text_normalize    sentence/
//   sentence -> speakable text        eng_text_tokenize     tokenize/, readers/, numbers/
//   sections -> speakable text        section_process       the same, for a queue that a host holds
//   speakable text -> records         eng_text_to_utterance_syllable    utterance/
//
// The tables of markup tags are in markup/, what all steps share in common/.
//
// The object holds nothing but the arena it takes its memory from. Working memory goes back before
// the call that took it returns; the records of an utterance pass to the host. The object owns no
// memory, keeps nothing between calls and takes no lock; calls that share an arena must not
// overlap. Scratch buffers of readers, number words and builder are on the stack: no request of
// theirs can be refused. No argument may be null, and every text is NUL-terminated; any bytes may
// stand in it.
class PostProTnEng {
  public:
    PostProTnEng();
    ~PostProTnEng() = default;

    // Binds the engine to the host's arena, which must outlive its use here. May be called again.
    // Needed before eng_text_tokenize and every operation that makes sections or records.
    void init(mem_stack_handle mem_handle);

    // ---- Raw text to one sentence: sentence/ ----

    // Cuts the first sentence off `sz_source_text`: up to and including the first of "." "?" "!"
    // ";" "," ":" that ends one. Abbreviations are expanded, markup spans still open at the cut are
    // closed in the sentence and opened again in front of the rest.
    //   sz_source_text  read only
    //   sz_target_text  4096 bytes, zero-filled; receives the sentence
    //   sz_next_text    4096 bytes holding a text, normally ""; the open tags and the rest of the
    //                   source are appended: each tag, and the rest, whole or not at all
    // Always 0. Text remains when sz_next_text grew: call again on a copy of it. Malformed markup
    // (a closing tag that closes nothing or another kind, an eleventh open tag, an opening tag
    // above 199 characters, no room for a closing tag) ends the sentence there, unclosed, and the
    // rest of the source is dropped.
    int eng_text_normalize(char* sz_source_text, char* sz_target_text, char* sz_next_text);

    // Expands the abbreviation that the first "." of `sz_source_text` ends, if it ends one, in
    // `sz_target` (4096 bytes, holding the text written so far, which ends with that "."). Returns
    // the source position after the abbreviation. Null when there is none: the target's final "."
    // is removed and `*c_stop` set to 1; null too, without `*c_stop`, when the expansion has no
    // room.
    char* abbreviation(char* sz_source_text, char* sz_target, char* c_stop);

    // ---- Sentence to speakable text: tokenize/, readers/, numbers/ ----

    // Appends the speakable text of one sentence to `sz_target_text` (4096 bytes holding a text,
    // normally ""). 0 when done, -1 when the text did not fit; the target then keeps what was
    // written. For a sentence that is not empty, the arena must have room for a Section: -1, and
    // the target as it was, when it refuses that, or before init.
    int eng_text_tokenize(char* sz_source_text, char* sz_target_text);

    // Cuts a text into sections, appended in text order to the queue with head `sz_section`. 0, or
    // -1 when the arena refused one; those before it stay in the queue. The caller owns the
    // sections and gives each back with mem_stack_release_buf.
    int text_to_queue(char* sz_source_text, Section*& sz_section);

    // Appends one section with the text `sz_source` (cut at 499 characters) to the queue; an empty
    // text adds nothing. 0, or -1 when the arena refused the block.
    int add_section(char* sz_source, Section*& p_section);

    // Appends what the queue with head `p_section` (may be null) reads as to `sz_target_text` (4096
    // bytes holding a text). Texts and classes of sections may change on the way, their links do
    // not. 0 when done, -1 when the text did not fit; the target then keeps what was written.
    int section_process(Section* p_section, char* sz_target_text);

    // ---- Speakable text to records: utterance/builder ----

    // Makes an array of one record per word of `sz_source_text` (read only, of any length), with
    // the punctuation, break times and markup that its tags give each word. Record 0, the head,
    // holds no word but the marks before the first. `p_utt` receives the array, `n_utt` its number
    // of records: 1 more than there are words.
    // The array and each record's `syllable` and `zhuyin` belong to the caller, who releases them
    // with their sizes: `n_utt` records, `syl_len` and `zy_len` bytes.
    // 0 when every word was stored. -1 with `p_utt` null and `n_utt` 0 when the arena refused the
    // array. -1 with both set when it refused a word's storage, or nested spans outgrew their 199
    // characters of names or values: the records stored so far are complete, the others zero.
    int eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt, int& n_utt);

    // ---- One record at a time: utterance/records, utterance/attributes ----
    // `utt` is an array as above, `n` the number of records written so far, head included. Values
    // are cut to 19 characters.

    // Stores a word of at most 499 characters in record `n`, at the default pause. False when its
    // storage was refused: the record's `syllable` is null, and nothing is kept.
    bool insert_syllable(int n, UtteranceSyllable* utt, const char* sz_char_buf);

    // Set one attribute of record `n` - 1: true. An effect is appended to the effects there: false
    // when it does not fit, and the field is unchanged. A prosody list «rate="2" pitch="low"» sets
    // what it names: false at the first unknown name, those before it set.
    bool insert_breaktime(int n, UtteranceSyllable* utt, char* time_str);
    bool insert_emphasis_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_poem_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_quill_effect_in(int n, UtteranceSyllable* utt, const char* value_str);
    bool insert_prosody_in(int n, UtteranceSyllable* utt, const char* value_str);

    // Sets the attributes of record `n` - 1 that a chain of spans gives it: names and values,
    // outermost first, each list joined by tabs. False at the first pair that cannot be applied,
    // those before it applied.
    bool insert_ssml_info_in(int n, UtteranceSyllable* utt, const char* value_str,
                             const char* tag_type);

    // Stores the words of the span `buffer_target` in the records from `n` on, with the attributes
    // of the chain, and moves `n` past them. False when a word's storage was refused or the
    // chain outgrew 199 characters; the words stored so far stay.
    bool insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                          char* buffer_target, const char* tag_type);

    // ---- Reading tagged text: utterance/scanner ----

    // One step of the scan of `p_word_text` at position `i`, which lies inside the text:
    //   sz_char_buf  500 bytes, the word read so far, `j` characters
    //   sz_tag       512 bytes, the name of the tag that this step read, else as it was
    //   sz_value, sz_target  each as large as the text: that tag's value and paired content
    //   mark         1 when this step completed the word, else 0
    // After a completed word the caller empties the buffers and sets `j` to 0; after a tag it
    // empties what it has used. Always true.
    bool filter_text(char* p_word_text, char* sz_char_buf, char* sz_tag, char* sz_value,
                     char* sz_target, int& i, int& j, int& mark);

    // Adds the number of words in the span `buffer_target` to `n`, nested spans included. Always
    // true.
    bool count_embed_word(int& n, char* buffer_target);

  private:
    friend struct PostProTnEngPeer;  // lets the tests reach the operations below

    // The readers and number words one by one. Each is one line over a function of the same name,
    // or of numbers/number_words.h, on which the dispatcher works.
    //
    // Tests (..._decide, ..._def) answer 1 or 0. Readers append to a text in a 500-byte buffer,
    // `sz_target_text`; the words that have no room there are cut. Those that get a section return
    // the last one they consumed, the others the buffer.

    // Blanks digits and marks outside tags and cuts the blanks at the end of the text.
    void re_regular(char* sz_source_text);

    // ---- readers/telephone ----
    // Whether a telephone number may begin here: digits, "(", "-" or a blank.
    int phone_number_decide(Section* p_section);
    // "area code " and at most nine sections; ends before a word, but consumes one that is first.
    Section* phone_number_read(Section* p_section, char* sz_target_text);

    // ---- readers/dates, readers/months ----
    int month_def(char* sz_source);
    // The month's full name, or the source itself, in the place of what the buffer held.
    char* month_read(char* sz_source_text, char* sz_target_text);
    int data_decide(Section* p_section);
    // After data_decide has said yes; returns the year.
    Section* data_number(Section* p_section, char* sz_target_text);
    // Two or four digits; nothing for any other number of them.
    char* year_read(char* sz_source_text, char* sz_target_text);

    // ---- readers/amounts: each reader after its test has said yes ----
    int fraction_decide(Section* pSection);
    Section* fraction_number(Section* pSection, char* sz_target_text);
    int decimal_decide(Section* pSection);
    Section* decimal_number(Section* psection, char* sz_target_text);
    // Whether a "$" follows the amount that begins here.
    int currency_decide(Section* pSection);
    // The amount after a "$", or before one. Null when the queue ran out; its words are appended.
    Section* currrency_read(Section* pSection, char* sz_target_text);

    // ---- readers/clock_times ----
    // 0 for no time; 1 for a short form, 2 for a long one, which time_number finds in m_nmark.
    int time_decide(Section* pSection);
    // Null, and nothing appended, when the form is incomplete, or the arena refuses 500 bytes.
    Section* time_number(Section* psection, char* sz_target_text);

    // ---- readers/number_tokens, readers/words ----
    // Null when the queue ran out; the words so far are appended.
    Section* str_number(Section* p_section, char* sz_target_text);
    // Returns the suffix; the section has zeros in the place of its last three of four digits or
    // more.
    Section* turn(Section* p_section, char* sz_target_text);
    // A word in capitals, in the place of what the buffer held: 1; 0 for any other, nothing
    // written.
    int process_upper_case(Section* m_ptemp_section, char* sz_target);

    // ---- readers/marks: `sz_target` is the 4096-byte output itself ----
    // Moves `p_temp_section` to the last section of a telephone number, if "(" begins one. False
    // when the output is full.
    bool process_bracket(Section*& p_temp_section, char* sz_target);
    // The last section of a telephone number, or the "+". Null when the output is full.
    Section* process_plus(Section* p_temp_section, char* sz_target);
    // Rewrites the section after the apostrophe; appends nothing and returns the apostrophe.
    Section* process_single_quote(Section* p_temp_section, char* sz_target);

    // ---- numbers/ ----
    // The first three digits, or fewer, as a cardinal.
    char* number_read(char* sz_source_text, char* sz_target_text);
    // Digit by digit.
    char* number_to_normal(char* sz_source_text, char* sz_target_text);
    // Whether there is nothing but digits.
    int number_def(char* sz_source);
    // One to three digits as an ordinal; null, and nothing appended, for any other number of them.
    char* str_turn(char* sz_source_text, char* sz_target_text);
    // With scale words, in the place of what the buffer held; of more than 12 digits the first four
    // groups.
    char* number_to_string(char* sz_source_text, char* sz_target_text);

    // ---- utterance/: on record `n` - 1; always true ----
    // Adds the mark of this name; one after the tenth is dropped, an unknown name counts as no
    // mark.
    bool insert_punc(int n, UtteranceSyllable* utt, char* punc_str);
    // `ch` is one of "& |#*+".
    bool insert_pause(int n, UtteranceSyllable* utt, char ch);

    // Reads the tag at `sz_text`, a "<": its name (512 bytes), its value and its paired content
    // (each as large as the text). The place after it; null, with name and value as far as they
    // go, when it is no tag of the language or has no ">".
    char* parse_tag(char* sz_text, char* sz_tag, char* sz_value, char* sz_target);

    mem_stack_handle _mem_handle;
};

}  // namespace kavi

#endif  // KAVI_POST_PRO_TN_ENG_H
