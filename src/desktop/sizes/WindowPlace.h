#pragma once

#include <QMargins>
#include <QRect>
#include <optional>

#include "desktop/values/Scale.h"
#include "platform/Form.h"

namespace platform::desktop {

/// What the place of a window depends on beside its form.
struct Surroundings {
    QRect desk;  ///< the part of the screen that windows may take
    std::optional<QPoint>
        origin{};      ///< corner of the client area of the main window; none while there is no such window
    QMargins frame{};  ///< what the desktop adds around a window
};

/// Where a window with a content of this size stands: where its form says or in the middle of the desk, and wholly on
/// it with its frame, if it is not larger. Without the frame.
QRect PlaceOf(const FormLook& form, QSize content, const Scale& scale, const Surroundings& around);

}  // namespace platform::desktop
