#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Controls.h"

namespace platform {

/// Milliseconds since the program started; never goes back.
using Moment = std::chrono::milliseconds;

/// Counts the time of all timers, on both platforms. Of the timers due at one moment the one that was enabled first
/// comes first.
class Scheduler {
public:
    /// `now` tells the present moment.
    explicit Scheduler(std::function<Moment()> now) : now_(std::move(now)) {}

    void Add(Timer& timer);
    void Remove(Timer& timer);

    /// When the next timer is due; nothing when none is enabled.
    [[nodiscard]] std::optional<Moment> NextDue() const;

    /// The first timer that is due by `now`, already set for its next tick; null when none is due.
    Timer* TakeDue(Moment now);

private:
    struct Running {
        Timer* timer;
        Moment due;
        long order;
    };
    [[nodiscard]] std::vector<Running>::const_iterator First() const;

    std::function<Moment()> now_;
    std::vector<Running> running_;
    long started_ = 0;
};

}  // namespace platform
