#pragma once

#include <QColor>
#include <span>

#include "platform/Form.h"

namespace platform::desktop {

/// Letters and the ground behind them, which may be invalid: then they stand on a picture.
struct Ink {
    QColor Ground;
    QColor Letters;

    bool operator==(const Ink&) const = default;
};

/// How well two colours are told apart, from 1 to 21, as the guidelines for accessible texts count it.
double ContrastOf(const QColor& a, const QColor& b);

/// The same letters for players with weak eyes: at least 7 to 1 on their ground. Where letters alone cannot do it, the
/// ground gives way; letters on a picture get a ground of their own.
Ink Readable(Ink ink);

/// The colour that lies behind the middle of a label without a ground of its own; invalid where that is a picture.
QColor GroundBehind(const Label& label);

}  // namespace platform::desktop
