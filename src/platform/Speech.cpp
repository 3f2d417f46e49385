#include "platform/Speech.h"

#include <algorithm>

namespace platform {

namespace {

/// "AMONG." as "AMONG: A, M, O, N, G."
Text Spelled(TextView word) {
    if (word.ends_with(u'.')) word.remove_suffix(1);
    Text spelled(word);
    for (std::size_t i = 0; i < word.size(); ++i) (spelled += i == 0 ? u": " : u", ") += word[i];
    return spelled + u".";
}

}  // namespace

void Append(Utterance& said, TextView words, Language in) {
    if (words.empty()) return;
    if (said.empty() || said.back().In != in) {
        said.push_back({.Words = Text(words), .In = in});
    } else {
        said.back().Words.append(u" ").append(words);
    }
}

void Append(Utterance& said, const Utterance& more) {
    for (const Phrase& run : more) Append(said, run.Words, run.In);
}

Text InOneLanguage(const Utterance& said) {
    Text text;
    for (const Phrase& run : said) {
        const bool isWord = run.In == Language::English && run.Words.find(u' ') == Text::npos;
        if (!text.empty()) text += u' ';
        text += isWord ? Spelled(run.Words) : run.Words;
    }
    return text;
}

}  // namespace platform
