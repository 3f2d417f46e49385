#pragma once

#include <random>

#include "platform/Services.h"

namespace platform {

/// The generator of both platforms.
class Generator : public Random {
public:
    explicit Generator(std::uint64_t seed) : engine_(seed) {}

    void Randomize(double seed) override;
    double Rnd() override;

private:
    std::mt19937_64 engine_;
};

}  // namespace platform
