#pragma once

#include <QColor>

#include "platform/Controls.h"

namespace platform::desktop {

/// The colour on the screen; an invalid one for none.
inline QColor ToQt(Color color) {
    return color.IsNone() ? QColor() : QColor(QRgb(color.Rgb));
}

}  // namespace platform::desktop
