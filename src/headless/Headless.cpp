#include "headless/Headless.h"

namespace platform::headless {

using std::chrono::floor;

Date ManualClock::Today() const {
    const std::chrono::year_month_day day(floor<std::chrono::days>(WallTime()));
    return {static_cast<int>(static_cast<unsigned>(day.day())), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(day.year())};
}

std::int32_t ManualClock::Time() const {
    return static_cast<std::int32_t>(Timer());
}

double ManualClock::Timer() const {
    const auto ofDay = WallTime() - floor<std::chrono::days>(WallTime());
    return std::chrono::duration<double>(ofDay).count();
}

void ManualClock::SetDate(Date date) {
    const auto ofDay = WallTime() - floor<std::chrono::days>(WallTime());
    const auto day = std::chrono::year(date.Year) / date.Month / date.Day;
    start_ = std::chrono::sys_days(day) + ofDay - now_;
}

void ManualClock::SetTime(std::int32_t secondsOfDay) {
    start_ = floor<std::chrono::days>(WallTime()) + std::chrono::seconds(secondsOfDay) - now_;
}

void ScriptedRandom::Randomize(double seed) {
    log_.Add("randomize");
    generator_.Randomize(seed);
}

double ScriptedRandom::Rnd() {
    if (queue_.empty()) return generator_.Rnd();
    const double value = queue_.front();
    queue_.pop_front();
    return value;
}

Services Headless::Services() {
    return {screen, *this, *this, clock, random, *this, *this, files, *this};
}

void Headless::Wait(Moment duration) {
    const Moment end = clock.Now() + duration;
    while (scheduler.NextDue() && *scheduler.NextDue() <= end) {
        if (*scheduler.NextDue() > clock.Now()) clock.MoveTo(*scheduler.NextDue());
        screen.Tick(clock.Now());
    }
    if (clock.Now() < end) clock.MoveTo(end);
}

void Headless::Opened(Form& form, bool modal) {
    if (windows_ != nullptr) windows_->Opened(form, modal);
}

void Headless::Closed(Form& form) {
    if (windows_ != nullptr) windows_->Closed(form);
}

void Headless::Refresh() {
    if (windows_ != nullptr) windows_->Refresh();
}

void Headless::WaitUntil(const std::function<bool()>& done) {
    while (!done()) {
        if (!move_ || !move_()) Leave();
    }
}

void Headless::End() {
    log.Add("end");
    Leave();
}

void Headless::Leave() {
    if (end_) end_();
    throw Ended();
}

void Headless::MsgBox(TextView text, TextView title) {
    log.Add("msgbox \"" + ToUtf8(text) + "\" \"" + ToUtf8(title) + "\"");
}

bool Headless::ShowDialog() {
    log.Add(AcceptPrinter ? "printer accept" : "printer cancel");
    return AcceptPrinter;
}

void Headless::Command(const MediaChannel& channel, MediaCommand command) {
    std::string entry = "sound ";
    entry.append(channel.Name).append(" ").append(CommandName(command));
    if (command == MediaCommand::Open) entry.append(" ").append(ToUtf8(channel.FileName));
    log.Add(std::move(entry));
}

}  // namespace platform::headless
