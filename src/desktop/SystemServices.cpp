#include "desktop/SystemServices.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
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

void ShowWarning(QWidget* owner, TextView text, TextView title) {
    QMessageBox box(owner);
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    box.setWindowTitle(ToQt(title));
    box.addButton("Aceptar", QMessageBox::AcceptRole);
    box.exec();
}

}  // namespace platform::desktop
