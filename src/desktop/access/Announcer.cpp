#include "desktop/access/Announcer.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "desktop/values/Strings.h"

namespace platform::desktop {

/// An element that only screen readers meet: it says its name when it is shown. They speak no event of the toolkit but
/// this one from everywhere, and below a status bar they speak the name alone.
class Notice : public QAccessibleInterface {
public:
    Notice(QAccessible::Role role, QWidget* window, Notice* bar)
        : role_(role), window_(window), bar_(bar), id_(QAccessible::registerAccessibleInterface(this)) {}

    [[nodiscard]] QAccessible::Id Id() const { return id_; }
    [[nodiscard]] const QWidget* Window() const { return window_; }
    void SetName(const QString& name) { name_ = name; }

    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return window_ ? window_->windowHandle() : nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return bar_ != nullptr ? static_cast<QAccessibleInterface*>(bar_)
                               : QAccessible::queryAccessibleInterface(window_);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name ? name_ : QString();
    }
    void setText(QAccessible::Text /*text*/, const QString& /*value*/) override {}
    [[nodiscard]] QRect rect() const override { return {}; }
    [[nodiscard]] QAccessible::Role role() const override { return role_; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = true;
        state.readOnly = true;
        return state;
    }

private:
    const QAccessible::Role role_;
    const QPointer<QWidget> window_;
    Notice* const bar_;
    QString name_;
    const QAccessible::Id id_;
};

Announcer::Announcer(std::function<QWidget*()> front) : front_(std::move(front)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Speak(); });
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &timer_, [this] { Await(); });
    QAccessible::installActivationObserver(this);
}

Announcer::~Announcer() {
    QAccessible::removeActivationObserver(this);
    Clear();
}

void Announcer::Clear() {
    // The toolkit deletes what is registered with it.
    for (auto& notice : ring_) {
        if (notice) QAccessible::deleteAccessibleInterface(notice.release()->Id());
    }
    if (bar_) QAccessible::deleteAccessibleInterface(bar_.release()->Id());
}

bool Announcer::IsHeard() const {
    return QAccessible::isActive() || OnSpoken;
}

void Announcer::Say(const Utterance& said) {
    if (!IsHeard()) return;
    waiting_ << ToQt(InOneLanguage(said));
    Await();
}

/// The title of a window is told to the reader when the window gets the keyboard.
void Announcer::Await() {
    constexpr int kPatience = 2000;  // milliseconds, for a window that stays behind those of another program
    if (waiting_.isEmpty()) return;
    const QWidget* const front = front_();
    const bool isThere = front == nullptr || front->isActiveWindow();
    timer_.start(isThere ? 0 : kPatience);
}

void Announcer::Speak() {
#ifdef Q_OS_WIN
    // A later notification takes the place of an earlier one.
    waiting_ = QStringList(waiting_.join(' '));
#endif
    for (const QString& text : std::exchange(waiting_, {})) {
        if (OnSpoken) OnSpoken(text);
        QWidget* const window = front_();
        if (QAccessible::isActive() && window != nullptr) Notify(window, text);
    }
}

void Announcer::Notify(QWidget* window, const QString& text) {
#ifdef Q_OS_WIN
    // The toolkit makes this a notification of the system's.
    QAccessibleValueChangeEvent event(window, text);
#else
    // Readers remember where an element belongs, and would name the window that it belonged to.
    if (bar_ && bar_->Window() != window) Clear();
    if (!bar_) bar_ = std::make_unique<Notice>(QAccessible::StatusBar, window, nullptr);
    auto& notice = ring_.at(next_);
    next_ = (next_ + 1) % ring_.size();
    if (!notice) notice = std::make_unique<Notice>(QAccessible::Notification, window, bar_.get());
    notice->SetName(text);
    QAccessibleEvent event(notice.get(), QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}

}  // namespace platform::desktop
