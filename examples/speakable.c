#include <kavi.h>
#include <stdio.h>

int main(void) {
    kavi_reader* reader;
    char* spoken;
    if (kavi_reader_new(0, &reader) != KAVI_OK) return 1;
    if (kavi_normalize(reader, "It is 10:30, ok?", 16, KAVI_PLAIN, &spoken, NULL) == KAVI_OK) puts(spoken);
    kavi_free(spoken);
    kavi_reader_free(reader);
}
