#pragma once

#include <optional>

#include "platform/Screen.h"

namespace platform::headless {

/// The size of a bitmap file, from its header; nothing if there is none that can be read.
std::optional<PictureSize> BitmapSize(Files& files, TextView name);

}  // namespace platform::headless
