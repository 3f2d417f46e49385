#include "Platform.h"

using namespace platform::headless;

struct Platform::Parts {
    explicit Parts(platform::Files& files) : headless(files) {}
    Headless headless;
    ScreenHand hand{headless.screen};
};

Platform::Platform(platform::Files& files) : parts_(std::make_unique<Parts>(files)) {}
Platform::~Platform() = default;

Headless& Platform::Services() const {
    return parts_->headless;
}

Hand& Platform::Hand() const {
    return parts_->hand;
}

bool Platform::Ends(const std::function<void()>& statement) const {
    try {
        statement();
    } catch (const Ended&) {
        return true;
    }
    return false;
}
