#include "platform/Generator.h"

#include <bit>

namespace platform {

void Generator::Randomize(double seed) {
    engine_.seed(engine_() ^ std::bit_cast<std::uint64_t>(seed));
}

double Generator::Rnd() {
    constexpr int kDigits = 53;
    return static_cast<double>(engine_() >> (64U - kDigits)) / static_cast<double>(1LL << kDigits);
}

}  // namespace platform
