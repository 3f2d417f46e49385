#include "platform/Services.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace platform {

std::string_view CommandName(MediaCommand command) {
    static constexpr std::array<std::string_view, 5> kNames = {"Open", "Play", "Prev", "Pause", "Close"};
    return kNames.at(static_cast<std::size_t>(command));
}

int Draw(Random& random, const Clock& clock, int n) {
    random.Randomize(clock.Timer());
    return std::min(static_cast<int>(std::floor(random.Rnd() * n)), n - 1) + 1;
}

void PlaySound(Media& media, MediaChannel& channel, TextView file) {
    channel.FileName = file;
    media.Command(channel, MediaCommand::Open);
    media.Command(channel, MediaCommand::Play);
    media.Command(channel, MediaCommand::Prev);
}

Text FormatDate(Date date) {
    return Decimal(date.Day) + u"-" + Decimal(date.Month) + u"-" + Decimal(date.Year);
}

Text FormatTime(std::int32_t seconds) {
    const auto two = [](int number) { return (number < 10 ? u"0" : u"") + Decimal(number); };
    return two(seconds / 3600) + u":" + two(seconds / 60 % 60) + u":" + two(seconds % 60);
}

int Weekday(Date date) {
    using namespace std::chrono;
    const sys_days days =
        year(date.Year) / month(static_cast<unsigned>(date.Month)) / day(static_cast<unsigned>(date.Day));
    return static_cast<int>(weekday(days).c_encoding()) + 1;
}

}  // namespace platform
