#include "platform/Scheduler.h"

#include <algorithm>
#include <tuple>

namespace platform {

void Scheduler::Add(Timer& timer) {
    running_.push_back({&timer, now_() + Moment(timer.Interval), ++started_});
}

void Scheduler::Remove(Timer& timer) {
    std::erase_if(running_, [&timer](const Running& running) { return running.timer == &timer; });
}

std::vector<Scheduler::Running>::const_iterator Scheduler::First() const {
    return std::ranges::min_element(running_, {}, [](const Running& r) { return std::tuple(r.due, r.order); });
}

std::optional<Moment> Scheduler::NextDue() const {
    if (running_.empty()) return std::nullopt;
    return First()->due;
}

Timer* Scheduler::TakeDue(Moment now) {
    if (running_.empty() || First()->due > now) return nullptr;
    Running& running = running_[static_cast<std::size_t>(First() - running_.cbegin())];
    const Moment interval(running.timer->Interval);
    running.due += interval;
    // A platform that was busy for longer does not make up for the ticks that it missed.
    if (running.due <= now) running.due = now + interval;
    return running.timer;
}

}  // namespace platform
