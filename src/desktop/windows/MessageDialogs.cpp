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

}  // namespace

void ShowWarning(QWidget* owner, TextView text, TextView title) {
    QMessageBox box(owner);
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    box.setWindowTitle(ToQt(title));
    // The key that brought the box up must not take it away again while it is held.
    RepeatFilter held;
    box.addButton("Aceptar", QMessageBox::AcceptRole)->installEventFilter(&held);
    box.installEventFilter(&held);
    box.exec();
}

}  // namespace platform::desktop
