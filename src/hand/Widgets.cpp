#include "hand/Widgets.h"

#include <QApplication>
#include <QElapsedTimer>

#include "desktop/values/Strings.h"

namespace platform::hand {

namespace {

template <class T>
T* Find(const desktop::WindowDisplay& display, const Control& control) {
    const desktop::FormWindow* const window = display.WindowOf(control.Owner);
    return window == nullptr ? nullptr : window->findChild<T*>(desktop::ToQt(std::string_view(control.FullName())));
}

}  // namespace

QWidget* FindWidget(const desktop::WindowDisplay& display, const Control& control) {
    return Find<QWidget>(display, control);
}

QAction* FindAction(const desktop::WindowDisplay& display, const Control& entry) {
    return Find<QAction>(display, entry);
}

void Settle(const desktop::WindowDisplay& display) {
    constexpr int kPatience = 2000;  // milliseconds, for a window system that is another program
    QElapsedTimer waited;
    waited.start();
    do {
        QCoreApplication::processEvents();
        const desktop::FormWindow* const front = display.FrontWindow();
        if (front == nullptr || !front->isVisible() || front->isActiveWindow()) return;
        const QWidget* const modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal != front) return;
    } while (waited.elapsed() < kPatience);
}

}  // namespace platform::hand
