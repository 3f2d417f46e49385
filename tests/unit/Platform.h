#pragma once

#include <functional>
#include <memory>

#include "headless/Hand.h"
#include "headless/Headless.h"

/// A platform for tests with a player's hand on it: clock, chance and all services are those of the memory. Its windows
/// are those of the program that the tests are linked into, of the memory or of the toolkit.
class Platform {
public:
    /// The files must outlive the platform.
    explicit Platform(platform::Files& files);
    ~Platform();
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    [[nodiscard]] platform::headless::Headless& Services() const;
    [[nodiscard]] platform::headless::Hand& Hand() const;

    /// Whether `statement` ends the program. The state of this process is not altered where a toolkit cannot unwind.
    bool Ends(const std::function<void()>& statement) const;

private:
    struct Parts;
    const std::unique_ptr<Parts> parts_;
};
