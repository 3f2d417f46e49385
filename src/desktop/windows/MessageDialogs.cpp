#include "desktop/windows/MessageDialogs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/values/Strings.h"
#include "desktop/windows/WindowDisplay.h"

namespace platform::desktop {

void MessageDialogs::Beep() {
    QApplication::beep();
}

void MessageDialogs::MsgBox(TextView text, TextView title) {
    display_.Refresh();
    ShowWarning(display_.FrontWindow(), text, title);
}

namespace {

/// Takes away what a key held down repeats.
class RepeatFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        return event->type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(*event).isAutoRepeat();
    }
};

/// Orange ground and a green plate, as the dialogs of the game have them.
constexpr const char* kDress =
    "QMessageBox { background: #FEB440; border: 1px solid #7A3D0A } QLabel { color: black; font-weight: bold }"
    "QPushButton { background: #00C000; color: black; font-weight: bold; border: 1px solid black;"
    " border-radius: 8px; padding: 6px 24px }"
    "QPushButton:hover { background: #00D800 } QPushButton:pressed { background: #00A000 }"
    "QPushButton:focus { border: 2px solid #0050FF; padding: 5px 23px }";

}  // namespace

void ShowWarning(QWidget* owner, TextView text, TextView title) {
    QMessageBox box(owner);
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    box.setWindowTitle(ToQt(title));
    box.setStyleSheet(kDress);
    // The key that brought the box up must not take it away again while it is held.
    RepeatFilter held;
    box.addButton("Aceptar", QMessageBox::AcceptRole)->installEventFilter(&held);
    box.installEventFilter(&held);
    box.exec();
}

}  // namespace platform::desktop
