#pragma once

#include <vector>

#include "platform/Text.h"

/// What is said to players who listen.
namespace platform {

enum class Language { Spanish, English };

/// A stretch of what is said, in one language.
struct Phrase {
    Text Words;
    Language In = Language::Spanish;

    bool operator==(const Phrase&) const = default;
};

/// What is said in one go, phrase after phrase.
using Utterance = std::vector<Phrase>;

/// Puts words behind an utterance, in the phrase that ends it if that has their language. No words change nothing.
void Append(Utterance& said, TextView words, Language in = Language::Spanish);
void Append(Utterance& said, const Utterance& more);

/// For a voice that has one language alone: the text of all phrases. A single word in another language is spelled
/// behind itself: "AMONG: A, M, O, N, G."
Text InOneLanguage(const Utterance& said);

/// Speaks.
class Speech {
public:
    virtual ~Speech() = default;

    /// Whether anybody listens; where nobody does, nothing need be said.
    [[nodiscard]] virtual bool IsHeard() const = 0;
    /// Speaks after what was said before.
    virtual void Say(const Utterance& said) = 0;
};

}  // namespace platform
