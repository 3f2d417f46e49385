#pragma once

#include <QString>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "platform/Services.h"

class QWidget;

namespace platform::desktop {

class Notice;

/// Speaks through the screen reader that runs, wherever the focus is. What is said in one turn of the event loop is
/// spoken as one text, and after the title of a window that has just come to the front.
class Announcer : public Speech {
public:
    /// `front` gives the window in front, null for none.
    explicit Announcer(std::function<QWidget*()> front);
    ~Announcer() override;

    [[nodiscard]] bool IsHeard() const override;
    void Say(TextView text) override;

    /// Where it is set, somebody listens: it gets what is spoken.
    std::function<void(const QString&)> OnSpoken;

private:
    void Speak();
    void Notify(QWidget* window, const QString& text);
    void Clear();

    const std::function<QWidget*()> front_;
    QTimer timer_;
    QString waiting_;
    const QWidget* window_ = nullptr;  // the one last spoken in; only compared
    std::unique_ptr<Notice> bar_;
    // A text is heard only if none follows it at once on the same object.
    std::array<std::unique_ptr<Notice>, 8> ring_;
    std::size_t next_ = 0;
};

}  // namespace platform::desktop
