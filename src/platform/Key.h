#pragma once

#include "platform/Text.h"

namespace platform {

/// Codes of the keys that have no character of their own.
enum KeyCode : int {
    KeyNone = 0,
    KeyTab = 9,
    KeyEnter = 13,
    KeyEscape = 27,
    KeySpace = 32,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyF1 = 112,
    KeyF5 = 116,
    KeyF7 = 118,
    KeyF8 = 119,
    KeyBacktab = 265,  ///< Shift and Tab
};

/// One key press as a form gets it.
struct Key {
    int Code = KeyNone;      ///< a KeyCode, or the upper-case letter or digit of the key
    char16_t Character = 0;  ///< the character typed; 0 for a key without one
    bool Control = false;    ///< held together with Ctrl
    bool Repeated = false;   ///< no press of its own: the key is still held down (see HeldKey)

    bool operator==(const Key&) const = default;
};

/// The key that types this character: a digit, a letter from A to Z, Ñ and the blank have a code, nothing else has.
Key KeyOf(char16_t character);

/// Ctrl and a letter; its character is the control code, 1 for A.
constexpr Key ControlKey(char letter) {
    return {.Code = letter, .Character = static_cast<char16_t>(letter - 'A' + 1), .Control = true};
}

/// A key without a character, such as KeyLeft or KeyF1.
constexpr Key PlainKey(int code) {
    return {.Code = code};
}

}  // namespace platform
