#include "desktop/keys/KeyFilter.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <string_view>

namespace platform::desktop {

namespace {

/// A text box takes all keys but the control letters that no player knows to delete his text; a list those that move
/// its selection, and no letter to look for a line.
bool Takes(const QObject* receiver, const std::optional<Key>& key) {
    constexpr std::string_view kEditing = "ACVXZ";
    if (dynamic_cast<const QListWidget*>(receiver) != nullptr) return key && key->Character == 0;
    if (dynamic_cast<const QLineEdit*>(receiver) == nullptr) return false;
    const bool controls = key && key->Control && key->Character != 0;
    return !controls || kEditing.find(static_cast<char>(key->Code)) != std::string_view::npos;
}

bool IsArrow(const QKeyEvent& press) {
    return press.key() >= Qt::Key_Left && press.key() <= Qt::Key_Down;
}

}  // namespace

KeyFilter::KeyFilter(const Toolkit& toolkit, const Form& form, QWidget& client, Cursor& cursor)
    : QObject(&client),
      screen_(toolkit.Screen),
      sizing_(toolkit.Sizing),
      form_(form),
      client_(client),
      cursor_(cursor) {
    client.setAttribute(Qt::WA_InputMethodEnabled);
    client.installEventFilter(this);
    client.window()->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::KeyPress) return TakeKey(receiver, static_cast<const QKeyEvent&>(*event));
    if (event->type() == QEvent::InputMethod && receiver == &client_) {
        TakeText(static_cast<const QInputMethodEvent&>(*event).commitString());
        return true;
    }
    return false;
}

bool KeyFilter::TakeKey(QObject* receiver, const QKeyEvent& press) {
    if (press.key() == Qt::Key_F11 && press.modifiers() == Qt::NoModifier) {
        if (!press.isAutoRepeat()) sizing_.SwitchFullScreen();
        return true;
    }
    if (screen_.Front() == &form_ && cursor_.Take(press)) return true;
    if (press.isAutoRepeat()) return TakeRepeat(receiver, press);
    const std::optional<Key> key = reader_.Read(press);
    const bool taken = key && Press(*key);
    return taken || !Takes(receiver, key);
}

bool KeyFilter::TakeRepeat(const QObject* receiver, const QKeyEvent& press) {
    const std::optional<Key> key = reader_.Read(press);
    if (Takes(receiver, key)) return false;
    if (key && IsArrow(press) && form_.KeyPreview && form_.OnKeyDown) Press(*key);
    return true;
}

void KeyFilter::TakeText(const QString& text) {
    for (const QChar character : text) Press(KeyOf(character.unicode()));
}

/// A key that was still on its way to a form that is gone must not reach the one behind.
bool KeyFilter::Press(const Key& key) {
    return screen_.Front() != &form_ || screen_.Press(key);
}

}  // namespace platform::desktop
