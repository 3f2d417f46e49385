#pragma once

#include <QObject>

#include "desktop/keys/Cursor.h"
#include "desktop/keys/Keys.h"
#include "platform/Screen.h"

namespace platform::desktop {

/// Hands every key press in a window to the cursor and then to the screen before any widget sees it; F11 has the game
/// fill the screen and back. What the screen leaves goes on to the widget that has the focus if that takes texts or a
/// selection, and nowhere else. A key held down repeats itself in such a widget, and as an arrow key in a form that
/// reads the codes of keys; for all else it is one press.
class KeyFilter : public QObject {
public:
    /// `client` is the widget with the focus while no element has it; it takes the characters of input methods.
    KeyFilter(const Toolkit& toolkit, const Form& form, QWidget& client, Cursor& cursor);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool TakeKey(QObject* receiver, const QKeyEvent& press);
    bool TakeRepeat(const QObject* receiver, const QKeyEvent& press);
    void TakeText(const QString& text);
    bool Press(const Key& key);

    Screen& screen_;
    Sizing& sizing_;
    const Form& form_;
    QWidget& client_;
    Cursor& cursor_;
    KeyReader reader_;
};

}  // namespace platform::desktop
