#include "desktop/keys/Repetitions.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

namespace platform::desktop {

namespace {

/// Keys that are held with others, and never repeated.
bool IsModifier(int qtKey) {
    return (qtKey >= Qt::Key_Shift && qtKey <= Qt::Key_ScrollLock) || qtKey == Qt::Key_AltGr ||
           qtKey == Qt::Key_unknown;
}

}  // namespace

Repetitions::Repetitions() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Repetitions::eventFilter(QObject* receiver, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if ((!isPress && event->type() != QEvent::KeyRelease) || !receiver->isWindowType()) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsModifier(key.key()) || std::exchange(isSentAnew_, false)) return false;
    const Moment at(static_cast<Moment::rep>(key.timestamp()));
    if (!isPress) {
        held_.Release(key.key(), at);
        return false;
    }
    const bool repeats = held_.Repeats(key.key(), at, key.isAutoRepeat());
    if (repeats == key.isAutoRepeat()) return false;
    QKeyEvent anew(QEvent::KeyPress, key.key(), key.modifiers(), key.nativeScanCode(), key.nativeVirtualKey(),
                   key.nativeModifiers(), key.text(), repeats);
    anew.setTimestamp(key.timestamp());
    isSentAnew_ = true;
    QCoreApplication::sendEvent(receiver, &anew);
    return true;
}

}  // namespace platform::desktop
