/* Words and their places from a program in C. */
#include <kavi.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    const char* text = "Dr. Smith paid $5.50 on 3/1/2020, ok?";
    kavi_reader* reader;
    kavi_result* result;
    if (kavi_reader_new(0, &reader) != KAVI_OK) return 1;
    const kavi_status status = kavi_read(reader, text, strlen(text), 0, &result);
    if (status != KAVI_OK) {
        fprintf(stderr, "%s\n", kavi_status_text(status));
        kavi_reader_free(reader);
        return 1;
    }
    for (size_t i = 0; i < kavi_result_sentences(result); ++i) {
        const kavi_sentence* sentence = kavi_result_sentence(result, i);
        for (size_t w = 0; w < sentence->n_words; ++w) {
            const kavi_word* word = &sentence->words[w];
            printf("%s <- %.*s, pause: %s\n", word->text.data, (int)word->source.length,
                   text + word->source.offset, kavi_pause_name(word->pause));
        }
    }
    kavi_result_free(result);
    kavi_reader_free(reader);
    return 0;
}
