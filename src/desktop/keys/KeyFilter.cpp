#include "desktop/keys/KeyFilter.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <string_view>

namespace platform::desktop {

namespace {

/// A text box takes all keys but the control letters that no player knows to delete his text.
bool Takes(const QObject* receiver, const std::optional<Key>& key) {
    constexpr std::string_view kEditing = "ACVXZ";
    if (dynamic_cast<const QLineEdit*>(receiver) == nullptr) return false;
    const bool controls = key && key->Control && key->Character != 0;
    return !controls || kEditing.find(static_cast<char>(key->Code)) != std::string_view::npos;
}

}  // namespace

KeyFilter::KeyFilter(const Toolkit& toolkit, const Form& form, QWidget& client)
    : QObject(&client), screen_(toolkit.Screen), sizing_(toolkit.Sizing), form_(form), client_(client) {
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
    std::optional<Key> key = reader_.Read(press);
    if (key) key->Repeated = press.isAutoRepeat();
    const bool taken = key && Press(*key);
    return taken || !Takes(receiver, key);
}

void KeyFilter::TakeText(const QString& text) {
    for (const QChar character : text) Press(KeyOf(character.unicode()));
}

/// A key that was still on its way to a form that is gone must not reach the one behind.
bool KeyFilter::Press(const Key& key) {
    return screen_.Front() != &form_ || screen_.Press(key);
}

}  // namespace platform::desktop
