#pragma once

#include <QObject>

#include "desktop/keys/Keys.h"
#include "desktop/views/View.h"

namespace platform::desktop {

/// Hands every key press in a window to the screen before any widget sees it; F11 has the game fill the screen and
/// back. What the screen leaves goes on to the text box that has the focus, and nowhere else.
class KeyFilter : public QObject {
public:
    /// `client` is the widget with the focus while no element has it; it takes the characters of input methods.
    KeyFilter(const Toolkit& toolkit, const Form& form, QWidget& client);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool TakeKey(QObject* receiver, const QKeyEvent& press);
    void TakeText(const QString& text);
    bool Press(const Key& key);

    Screen& screen_;
    Sizing& sizing_;
    const Form& form_;
    QWidget& client_;
    KeyReader reader_;
};

}  // namespace platform::desktop
