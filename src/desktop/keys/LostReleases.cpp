#include "desktop/keys/LostReleases.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace platform::desktop {

LostReleases::LostReleases(std::chrono::milliseconds patience) : patience_(patience) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool LostReleases::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !receiver->isWindowType()) return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    QElapsedTimer& last = last_[press.key()];
    const bool isLate = last.isValid() && last.hasExpired(patience_.count());
    last.start();
    if (!press.isAutoRepeat() || !isLate) return false;
    QKeyEvent anew(QEvent::KeyPress, press.key(), press.modifiers(), press.text());
    QCoreApplication::sendEvent(receiver, &anew);
    return true;
}

}  // namespace platform::desktop
