#include "desktop/SystemServices.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "desktop/Strings.h"
#include "desktop/WindowDisplay.h"

namespace platform::desktop {

Date SystemClock::Today() const {
    const QDate today = QDate::currentDate();
    return {.Day = today.day(), .Month = today.month(), .Year = today.year()};
}

std::int32_t SystemClock::Time() const {
    return static_cast<std::int32_t>(Timer());
}

double SystemClock::Timer() const {
    constexpr double kMillisecond = 0.001;
    return QTime::currentTime().msecsSinceStartOfDay() * kMillisecond;
}

void SystemBrowser::Navigate(TextView address) {
    QDesktopServices::openUrl(QUrl::fromUserInput(ToQt(address)));
}

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
