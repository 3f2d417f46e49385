#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "headless/Bitmap.h"
#include "platform/Generator.h"
#include "platform/Screen.h"
#include "platform/Services.h"

/// A complete platform in memory: a clock that moves when told, and a log of what was sounded, printed and shown.
namespace platform::headless {

/// Thrown through all handlers when the program ends, so that nothing more of it runs, where nobody takes the end.
struct Ended {};

/// What the platform would have brought before the player's eyes and ears, an entry a line, UTF-8.
class Log {
public:
    void Add(std::string entry) { entries_.push_back(std::move(entry)); }
    void Clear() { entries_.clear(); }
    [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }

private:
    std::vector<std::string> entries_;
};

/// A clock and a calendar that stand still until they are moved.
class ManualClock : public Clock {
public:
    [[nodiscard]] Date Today() const override;
    [[nodiscard]] std::int32_t Time() const override;
    [[nodiscard]] double Timer() const override;

    [[nodiscard]] Moment Now() const { return now_; }
    /// Moves the present to a moment that is not in the past.
    void MoveTo(Moment moment) { now_ = moment; }
    /// Sets the date or the time of day; the moment, and with it the timers, stay.
    void SetDate(Date date);
    void SetTime(std::int32_t secondsOfDay);

private:
    using Wall = std::chrono::sys_time<std::chrono::milliseconds>;
    [[nodiscard]] Wall WallTime() const { return start_ + now_; }

    Moment now_{0};
    Wall start_ = std::chrono::sys_days(std::chrono::year(2004) / 3 / 7) + std::chrono::hours(10);
};

/// A generator whose next numbers can be laid down.
class ScriptedRandom : public Random {
public:
    explicit ScriptedRandom(Log& log) : log_(log) {}

    void Randomize(double seed) override;
    double Rnd() override;

    /// Comes back from a later call of Rnd; values come in the order in which they were queued.
    void Queue(double value) { queue_.push_back(value); }

private:
    static constexpr std::uint64_t kSeed = 20040307;
    Log& log_;
    Generator generator_{kSeed};
    std::deque<double> queue_;
};

/// The platform. Its player is a function that makes one move at each call.
class Headless : Display, Dialogs, Printer, Media, Web, Speech {
public:
    /// The stored files lie where `files` keeps them. The forms are shown by `windows`, whose waiting and ending are
    /// not asked; null: nowhere. Both must outlive the platform.
    explicit Headless(platform::Files& files, Display* windows = nullptr) : files(files), windows_(windows) {}

    /// `move` makes the player's next move, false when he has none left; a modal form waits for his moves.
    void SetPlayer(std::function<bool()> move) { move_ = std::move(move); }
    /// `end` is called when the program ends, or the player has no moves left while a modal form waits. It must not
    /// come back.
    void SetEnd(std::function<void()> end) { end_ = std::move(end); }

    [[nodiscard]] platform::Services Services();

    Log log;
    ManualClock clock;
    ScriptedRandom random{log};
    platform::Files& files;
    Scheduler scheduler{[this] { return clock.Now(); }};
    Screen screen{*this, scheduler};

    /// The answer of the printer dialogs from here on.
    bool AcceptPrinter = true;

    /// Somebody listens from here on: what is said stands in `spoken`.
    void Listen() { listening_ = true; }
    std::vector<Utterance> spoken;

    /// Moves the clock; timers that become due fire in their order, those due at the very end too.
    void Wait(Moment duration);

private:
    void Opened(Form& form, bool modal) override;
    void Closed(Form& form) override;
    void Refresh() override;
    void WaitUntil(const std::function<bool()>& done) override;
    void End() override;
    [[nodiscard]] std::optional<PictureSize> SizeOf(TextView picture) const override {
        return BitmapSize(files, picture);
    }
    void Beep() override { log.Add("beep"); }
    void MsgBox(TextView text, TextView title) override;
    bool ShowDialog() override;
    void PrintForm(const Form& form) override { log.Add("print " + form.Name); }
    void Command(const MediaChannel& channel, MediaCommand command) override;
    void Navigate(TextView address) override { log.Add("navigate " + ToUtf8(address)); }
    [[nodiscard]] bool IsHeard() const override { return listening_; }
    void Say(const Utterance& said) override { spoken.push_back(said); }

    [[noreturn]] void Leave();

    Display* windows_;
    std::function<bool()> move_;
    bool listening_ = false;
    std::function<void()> end_;
};

}  // namespace platform::headless
