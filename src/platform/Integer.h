#pragma once

#include <cstdint>

namespace platform {

/// The 16-bit number of the game's fields and of what it stores.
using Integer = std::int16_t;

}  // namespace platform
