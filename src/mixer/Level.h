#pragma once

#include <cmath>

namespace platform::desktop {

constexpr int kRate = 44100;  ///< frames a second

/// How loud something is, on its way from one level to another from frame to frame.
class Level {
public:
    explicit Level(double decibels) : gain_(Gain(decibels)), target_(decibels) {}

    /// Sets out for a level in decibels, to be there after some milliseconds; nothing if it is on its way there.
    void GoTo(double decibels, int milliseconds) {
        if (decibels == target_) return;
        target_ = decibels;
        frames_ = milliseconds * kRate / 1000;
        step_ = std::pow(Gain(decibels) / gain_, 1.0 / frames_);
    }
    /// The factor for the next frame.
    double Next() {
        if (frames_ == 0) return gain_;
        gain_ = --frames_ == 0 ? Gain(target_) : gain_ * step_;
        return gain_;
    }
    [[nodiscard]] bool IsAbove(double decibels) const { return target_ > decibels; }
    /// Whether it has come to this level.
    [[nodiscard]] bool IsAt(double decibels) const { return frames_ == 0 && target_ == decibels; }

private:
    static double Gain(double decibels) { return std::pow(10.0, decibels / 20); }

    double gain_;
    double target_;
    double step_ = 1;
    int frames_ = 0;
};

}  // namespace platform::desktop
