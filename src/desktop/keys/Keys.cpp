#include "desktop/keys/Keys.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform::desktop {

namespace {

struct CodeRow {
    int qtKey;
    int code;
};
constexpr std::array<CodeRow, 13> kCodes = {{
    {Qt::Key_Return, KeyEnter},
    {Qt::Key_Enter, KeyEnter},
    {Qt::Key_Escape, KeyEscape},
    {Qt::Key_Tab, KeyTab},
    {Qt::Key_Backtab, KeyBacktab},
    {Qt::Key_PageUp, KeyPageUp},
    {Qt::Key_PageDown, KeyPageDown},
    {Qt::Key_Home, KeyHome},
    {Qt::Key_End, KeyEnd},
    {Qt::Key_Left, KeyLeft},
    {Qt::Key_Up, KeyUp},
    {Qt::Key_Right, KeyRight},
    {Qt::Key_Down, KeyDown},
}};

struct AccentRow {
    int qtKey;
    char16_t combining;
};
constexpr std::array<AccentRow, 8> kAccents = {{
    {Qt::Key_Dead_Grave, 0x0300},
    {Qt::Key_Dead_Acute, 0x0301},
    {Qt::Key_Dead_Circumflex, 0x0302},
    {Qt::Key_Dead_Tilde, 0x0303},
    {Qt::Key_Dead_Diaeresis, 0x0308},
    {Qt::Key_Dead_Abovering, 0x030A},
    {Qt::Key_Dead_Caron, 0x030C},
    {Qt::Key_Dead_Cedilla, 0x0327},
}};

/// The code of a key that types nothing.
int CodeOf(int qtKey) {
    const auto* row = std::ranges::find(kCodes, qtKey, &CodeRow::qtKey);
    if (row != kCodes.end()) return row->code;
    return qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12 ? KeyF1 + qtKey - Qt::Key_F1 : int{KeyNone};
}

/// The one character of a press with its modifiers; 0 for none.
char16_t CharacterOf(const QKeyEvent& press) {
    constexpr char16_t kDelete = 0x7F;
    const QString text = press.text();
    if (text.size() != 1) return 0;
    const char16_t character = text.front().unicode();
    const bool printable = character >= u' ' && character != kDelete;
    const Qt::KeyboardModifiers modifiers = press.modifiers();
    if (modifiers.testFlag(Qt::MetaModifier)) return 0;
#ifndef Q_OS_MACOS
    // Ctrl and Alt together are how some systems tell AltGr, which types characters.
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    const bool alt = modifiers.testFlag(Qt::AltModifier);
    if (control != alt || (control && !printable)) return 0;
#endif
    return printable || character < u' ' ? character : char16_t{0};
}

}  // namespace

std::optional<Key> KeyReader::Read(const QKeyEvent& press) {
    const auto* dead = std::ranges::find(kAccents, press.key(), &AccentRow::qtKey);
    if (dead != kAccents.end()) {
        accent_ = dead->combining;
        return std::nullopt;
    }
    const bool controlOnly =
        press.modifiers().testFlag(Qt::ControlModifier) && !press.modifiers().testFlag(Qt::AltModifier);
    if (controlOnly && press.key() >= Qt::Key_A && press.key() <= Qt::Key_Z) {
        return ControlKey(static_cast<char>(press.key()));
    }
    const char16_t character = CharacterOf(press);
    // Together with Alt a key belongs to the menus or to the system.
    constexpr Qt::KeyboardModifiers kElsewhere = Qt::AltModifier | Qt::MetaModifier;
    if (character == 0 && (press.modifiers() & kElsewhere)) return Key{};
    Key key = character >= u' ' ? KeyOf(character) : Key{.Code = CodeOf(press.key()), .Character = character};
    key.Control = controlOnly;
    if (accent_.isNull() || character == 0) return key;

    // A control character (Enter, Esc) gives the accent up.
    const QString pair = QString(QChar(key.Character)) + std::exchange(accent_, QChar());
    if (key.Character < u' ') return key;
    const QString composed = pair.normalized(QString::NormalizationForm_C);
    if (composed.size() != 1) return std::nullopt;
    return KeyOf(composed.front().unicode());
}

}  // namespace platform::desktop
