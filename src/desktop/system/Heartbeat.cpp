#include "desktop/system/Heartbeat.h"

#include <algorithm>

namespace platform::desktop {

Heartbeat::Heartbeat() {
    clock_.start();
    alarm_.setTimerType(Qt::PreciseTimer);
    alarm_.setSingleShot(true);
    QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { Beat(); });
}

void Heartbeat::Attach(const Scheduler& scheduler, Screen& screen) {
    scheduler_ = &scheduler;
    screen_ = &screen;
}

void Heartbeat::Arm() {
    const std::optional<Moment> due = scheduler_->NextDue();
    if (due == armed_) return;
    armed_ = due;
    if (due) {
        alarm_.start(std::max(*due - Now(), Moment(0)));
    } else {
        alarm_.stop();
    }
}

void Heartbeat::Beat() {
    armed_.reset();
    const Moment now = Now();
    while (screen_->Tick(now)) {
    }
    Arm();
}

}  // namespace platform::desktop
