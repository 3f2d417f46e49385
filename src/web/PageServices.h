#pragma once

#include <map>
#include <string>

#include "platform/Services.h"

namespace platform::web {

class PageDisplay;

/// The date and time of the machine.
class PageClock : public Clock {
public:
    [[nodiscard]] Date Today() const override;
    [[nodiscard]] std::int32_t Time() const override;
    [[nodiscard]] double Timer() const override;
};

/// Message boxes over the window in front.
class PageDialogs : public Dialogs {
public:
    explicit PageDialogs(PageDisplay& display) : display_(display) {}

    void Beep() override;
    void MsgBox(TextView text, TextView title) override;

private:
    PageDisplay& display_;
};

/// Printing by the browser. Whether the player goes on in the browser's own dialog is not told to a page, so the page
/// asks first.
class PagePrinter : public Printer {
public:
    explicit PagePrinter(PageDisplay& display) : display_(display) {}

    bool ShowDialog() override;
    void PrintForm(const Form& form) override;

private:
    PageDisplay& display_;
};

/// Sounds by the page: each channel plays the file that it was last told to open.
class PageMedia : public Media {
public:
    explicit PageMedia(PageDisplay& display) : display_(display) {}

    void Command(const MediaChannel& channel, MediaCommand command) override;

private:
    void TellMix();

    PageDisplay& display_;
    std::map<std::string, Text> files_;
    bool isMixTold_ = false;
};

/// Speaks through the page's live region. A page is not told whether anybody listens.
class PageSpeech : public Speech {
public:
    explicit PageSpeech(PageDisplay& display) : display_(display) {}

    [[nodiscard]] bool IsHeard() const override { return true; }
    void Say(const Utterance& said) override;

private:
    PageDisplay& display_;
};

/// Opens pages in tabs of their own.
class PageBrowser : public Web {
public:
    explicit PageBrowser(PageDisplay& display) : display_(display) {}

    void Navigate(TextView address) override;

private:
    PageDisplay& display_;
};

}  // namespace platform::web
