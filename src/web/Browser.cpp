#include "web/Browser.h"

#include "web/Page.h"

namespace platform::web {

namespace {

std::uint64_t Seed() {
    return (std::uint64_t{page_random_bits()} << 32U) | page_random_bits();
}

}  // namespace

Browser::Browser() : random_(Seed()) {
    display_.Attach(screen_);
}

void Browser::Run() {
    display_.WaitUntil([this] { return screen_.Shown().empty(); });
    display_.End();
}

}  // namespace platform::web
