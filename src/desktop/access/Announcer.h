#pragma once

#include <QAccessible>
#include <QStringList>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "platform/Services.h"

class QWidget;

namespace platform::desktop {

class Notice;

/// Speaks through the screen reader that runs, wherever the focus is. What is said while a window comes to the front is
/// spoken when the window has the keyboard, behind its title.
class Announcer : public Speech, QAccessible::ActivationObserver {
public:
    /// `front` gives the window in front, null for none.
    explicit Announcer(std::function<QWidget*()> front);
    ~Announcer() override;

    [[nodiscard]] bool IsHeard() const override;
    void Say(const Utterance& said) override;

    /// Where it is set, somebody listens: it gets what is spoken.
    std::function<void(const QString&)> OnSpoken;
    /// Called when a screen reader begins to listen, and when it stops.
    std::function<void(bool listens)> OnHeard;

private:
    void accessibilityActiveChanged(bool active) override {
        if (OnHeard) OnHeard(active);
    }
    void Await();
    void Speak();
    void Notify(QWidget* window, const QString& text);
    void Clear();

    const std::function<QWidget*()> front_;
    QTimer timer_;
    QStringList waiting_;
    std::unique_ptr<Notice> bar_;
    // A text is heard only if none follows it at once on the same object.
    std::array<std::unique_ptr<Notice>, 16> ring_;
    std::size_t next_ = 0;
};

}  // namespace platform::desktop
