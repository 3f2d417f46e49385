#pragma once

#include "platform/Form.h"

namespace platform {

/// Letters and the ground behind them; without a ground they stand on a picture.
struct Ink {
    Color Ground;
    Color Letters;

    bool operator==(const Ink&) const = default;
};

/// How well two colours are told apart, from 1 to 21, as the guidelines for accessible texts count it.
double ContrastOf(Color a, Color b);

/// The same letters for players with weak eyes: at least 7 to 1 on their ground. Where letters alone cannot do it, the
/// ground gives way; letters on a picture get a ground of their own.
Ink Readable(Ink ink);

/// How a label is to be shown to players with weak eyes.
struct ReadableLabel {
    platform::Ink Ink;
    bool Snug;  ///< the ground lies behind the text alone
};

/// No ground for a label that has none and stands out well from what lies behind it.
ReadableLabel Readable(const Label& label);

}  // namespace platform
