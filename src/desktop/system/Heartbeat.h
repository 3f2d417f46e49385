#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <optional>

#include "platform/Screen.h"

namespace platform::desktop {

/// Lets the timers of the game tick. The one system timer wakes for the next tick that is due, and sleeps when none is.
class Heartbeat {
public:
    Heartbeat();

    [[nodiscard]] Moment Now() const { return Moment(clock_.elapsed()); }
    /// The timers to be kept, and where they tick; to be told before the first timer is started.
    void Attach(const Scheduler& scheduler, Screen& screen);
    /// To be called when timers may have been started or stopped.
    void Arm();

private:
    void Beat();

    QElapsedTimer clock_;
    QTimer alarm_;
    std::optional<Moment> armed_;
    const Scheduler* scheduler_ = nullptr;
    Screen* screen_ = nullptr;
};

}  // namespace platform::desktop
