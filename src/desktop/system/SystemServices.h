#pragma once

#include "platform/Services.h"

namespace platform::desktop {

/// The date and time of the machine.
class SystemClock : public Clock {
public:
    [[nodiscard]] Date Today() const override;
    [[nodiscard]] std::int32_t Time() const override;
    [[nodiscard]] double Timer() const override;
};

/// Opens pages in the player's own browser.
class SystemBrowser : public Web {
public:
    void Navigate(TextView address) override;
};

}  // namespace platform::desktop
