#include "desktop/windows/WindowDisplay.h"

#include <QApplication>
#include <QEventLoop>
#include <cstdlib>

#include "desktop/windows/Look.h"

namespace platform::desktop {

WindowDisplay::WindowDisplay(const Scale& scale) : scale_(scale) {
    sizing_.OnFactor = [this] {
        SetLetters(scale_);
        ShowAnew();
    };
}

WindowDisplay::~WindowDisplay() {
    for (const auto& [form, window] : windows_) delete window;
}

FormWindow* WindowDisplay::WindowOf(const Form& form) const {
    const auto window = windows_.find(&form);
    return window == windows_.end() ? nullptr : window->second.data();
}

FormWindow* WindowDisplay::FrontWindow() const {
    const Form* const front = screen_->Front();
    return front == nullptr ? nullptr : WindowOf(*front);
}

void WindowDisplay::Opened(Form& form, bool modal) {
    const auto& shown = screen_->Shown();
    const bool alone = shown.size() < 2;
    const FormWindow::Before before = {.first = alone ? nullptr : WindowOf(*shown.front()),
                                       .front = alone ? nullptr : WindowOf(*shown[shown.size() - 2])};
    auto* const window = new FormWindow(Kit(), form, before, modal);
    windows_[&form] = window;
    if (!hadWindow_) {
        // The window is up when what it has painted has left for the screen: after this round of the event loop.
        window->ClientArea().OnFirstPaint = [this] {
            const auto tell = [this] {
                if (OnFirstWindow) OnFirstWindow();
            };
            QMetaObject::invokeMethod(&sizing_, tell, Qt::QueuedConnection);
        };
    }
    hadWindow_ = true;
    if (form.MinButton) {
        sizing_.Show();
    } else {
        window->show();
    }
    window->activateWindow();
}

void WindowDisplay::Closed(Form& form) {
    FormWindow* const window = WindowOf(form);
    windows_.erase(&form);
    if (window == nullptr) return;
    window->hide();
    // Not deleted at once: the event that closes it may be its own.
    window->deleteLater();
    if (FormWindow* const front = FrontWindow()) front->activateWindow();
}

void WindowDisplay::Refresh() {
    for (const auto& [form, window] : windows_) {
        if (window != nullptr) window->Refresh();
    }
    if (OnRefresh) OnRefresh();
}

void WindowDisplay::ShowAnew() {
    const FormWindow* const first = screen_->Shown().empty() ? nullptr : WindowOf(*screen_->Shown().front());
    if (first == nullptr) return;
    for (const auto& [form, window] : windows_) {
        if (window != nullptr) window->ShowAnew(*first);
    }
}

void WindowDisplay::ComeToFront() const {
    for (const auto& [form, window] : windows_) {
        if (window != nullptr && window->isMinimized())
            window->setWindowState(window->windowState() ^ Qt::WindowMinimized);
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    QWidget* const front = dialog != nullptr ? dialog : FrontWindow();
    if (front == nullptr) return;
    front->raise();
    front->activateWindow();
}

void WindowDisplay::Heed(const Wishes& wishes) {
    wishes_ = wishes;
    screen_->KeepStill(wishes.Stillness);
    SetColors(wishes.HighContrast);
    ShowAnew();
}

void WindowDisplay::WaitUntil(const std::function<bool()>& done) {
    QEventLoop loop;
    while (!done()) loop.processEvents(QEventLoop::WaitForMoreEvents);
}

std::optional<PictureSize> WindowDisplay::SizeOf(TextView picture) const {
    const QSize size = pictures_.SizeOf(picture);
    if (!size.isValid()) return std::nullopt;
    return PictureSize{.Width = size.width(), .Height = size.height()};
}

void WindowDisplay::End() {
    if (OnEnd) OnEnd();
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace platform::desktop
