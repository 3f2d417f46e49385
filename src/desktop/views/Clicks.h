#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace platform::desktop {

/// Takes away the second half of every double click on the widgets that it watches: the two are one click, also when
/// the first has closed the window or brought something else to its place. A second press on another thing that was
/// there already is a click of its own.
class DoubleClicks : public QObject {
public:
    void Watch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QPointer<QWidget> pressed_;
};

/// Calls a function for every press and release of the left mouse button on a widget. It belongs to the widget.
class ClickFilter : public QObject {
public:
    ClickFilter(QWidget& widget, DoubleClicks& doubleClicks, std::function<void()> click);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool Release(const QWidget& widget, const QPoint& spot);

    std::function<void()> click_;
    bool pressed_ = false;
};

}  // namespace platform::desktop
