#pragma once

#include "desktop/values/Scale.h"

namespace platform::desktop {

/// Gives the application the look that it has on every desktop: the colours of the design are meant for a light one.
void SetLook(const Scale& scale);

/// The colours of menus, messages and lists.
void SetColors(bool highContrast);

/// The letters of menus and messages, as large as the factor has them.
void SetLetters(const Scale& scale);

}  // namespace platform::desktop
