// The peer of scripts/quality: for each line of standard input, the words that flite would say.

#include <flite/flite.h>

#include <cstdio>
#include <iostream>
#include <string>

extern "C" cst_voice* register_cmu_us_kal(const char* directory);

int main() {
    flite_init();
    cst_voice* const voice = register_cmu_us_kal(nullptr);
    for (std::string text; std::getline(std::cin, text);) {
        cst_utterance* utterance = new_utterance();
        utt_set_input_text(utterance, text.c_str());
        utt_init(utterance, voice);
        default_tokenization(utterance);
        default_textanalysis(utterance);
        const char* blank = "";
        for (cst_item* item = relation_head(utt_relation(utterance, "Word")); item != nullptr;
             item = item_next(item)) {
            std::printf("%s%s", blank, item_feat_string(item, "name"));
            blank = " ";
        }
        std::printf("\n");
        delete_utterance(utterance);
    }
}
