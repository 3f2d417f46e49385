#include "desktop/views/Clicks.h"

#include <QMouseEvent>
#include <utility>

namespace platform::desktop {

namespace {

bool IsPress(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

bool IsLeft(const QEvent& mouse) {
    return static_cast<const QMouseEvent&>(mouse).button() == Qt::LeftButton;
}

}  // namespace

bool DoubleClicks::eventFilter(QObject* receiver, QEvent* event) {
    if (!IsPress(*event) || !IsLeft(*event)) return false;
    auto* const widget = static_cast<QWidget*>(receiver);
    const QPointer<QWidget> before = std::exchange(pressed_, widget);
    const bool onAnother = before != nullptr && before != widget && before->isVisible();
    return event->type() == QEvent::MouseButtonDblClick && !onAnother;
}

ClickFilter::ClickFilter(QWidget& widget, DoubleClicks& doubleClicks, std::function<void()> click)
    : QObject(&widget), click_(std::move(click)) {
    widget.installEventFilter(this);
    doubleClicks.Watch(widget);  // sees the events first
}

bool ClickFilter::eventFilter(QObject* receiver, QEvent* event) {
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    if ((!isRelease && !IsPress(*event)) || !IsLeft(*event)) return false;
    if (isRelease) {
        const QPoint spot = static_cast<const QMouseEvent&>(*event).position().toPoint();
        return Release(*static_cast<QWidget*>(receiver), spot);
    }
    pressed_ = true;
    return true;
}

bool ClickFilter::Release(const QWidget& widget, const QPoint& spot) {
    if (std::exchange(pressed_, false) && widget.rect().contains(spot)) click_();
    return true;
}

}  // namespace platform::desktop
