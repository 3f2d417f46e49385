#include "web/PageServices.h"

#include <chrono>
#include <cmath>
#include <utility>

#include "platform/Mix.h"
#include "web/Json.h"
#include "web/Page.h"
#include "web/PageDisplay.h"

namespace platform::web {

namespace {

using Wall = std::chrono::sys_time<std::chrono::milliseconds>;

Wall WallTime() {
    return Wall(std::chrono::milliseconds(static_cast<std::int64_t>(page_local_time())));
}

}  // namespace

Date PageClock::Today() const {
    const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(WallTime()));
    return {.Day = static_cast<int>(static_cast<unsigned>(day.day())),
            .Month = static_cast<int>(static_cast<unsigned>(day.month())),
            .Year = static_cast<int>(day.year())};
}

std::int32_t PageClock::Time() const {
    return static_cast<std::int32_t>(Timer());
}

double PageClock::Timer() const {
    const Wall now = WallTime();
    return std::chrono::duration<double>(now - std::chrono::floor<std::chrono::days>(now)).count();
}

void PageDialogs::Beep() {
    display_.Tell(Json("beep").Done());
}

void PageDialogs::MsgBox(TextView text, TextView title) {
    display_.TellChanges();
    display_.Tell(Json("message").Text("text", text).Text("title", title).Done());
    display_.WaitForAnswer();
}

bool PagePrinter::ShowDialog() {
    display_.TellChanges();
    display_.Tell(Json("askPrinter").Done());
    return display_.WaitForAnswer();
}

void PagePrinter::PrintForm(const Form& form) {
    display_.Print(form);
}

void PageMedia::Command(const MediaChannel& channel, MediaCommand command) {
    if (command == MediaCommand::Open) files_[channel.Name] = channel.FileName;
    if (command == MediaCommand::Open || command == MediaCommand::Prev) return;  // nothing to be heard
    TellMix();
    const bool plays = command == MediaCommand::Play;
    display_.Tell(Json(plays ? "play" : "stop")
                      .Text("channel", channel.Name)
                      .Text("file", files_[channel.Name])
                      .Flag("overMusic", channel.OverMusic)
                      .Done());
    if (command == MediaCommand::Close) files_.erase(channel.Name);
}

void PageMedia::TellMix() {
    if (std::exchange(isMixTold_, true)) return;
    display_.Tell(Json("mix")
                      .Number("underSound", std::lround(kMix.UnderSound))
                      .Number("silence", std::lround(kMix.Silence))
                      .Number("back", kMix.Back)
                      .Number("up", kMix.Up)
                      .Number("stop", kMix.Stop)
                      .Done());
}

void PageSpeech::Say(const Utterance& said) {
    std::string runs;
    for (const Phrase& run : said) {
        runs += runs.empty() ? "[" : ",[";
        runs += Quoted(ToUtf8(run.Words)) + (run.In == Language::English ? ",\"en\"]" : ",\"es\"]");
    }
    display_.Tell(Json("say").Raw("runs", "[" + runs + "]").Done());
}

void PageBrowser::Navigate(TextView address) {
    display_.Tell(Json("navigate").Text("address", address).Done());
}

}  // namespace platform::web
