#include "desktop/system/SystemServices.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QUrl>

#include "desktop/values/Strings.h"

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

}  // namespace platform::desktop
