#pragma once

#include "platform/Text.h"

namespace juego {

/// The page of the other game of the house, which two places of this one open.
constexpr platform::TextView PáginaWeb = u"https://dorvanquil.example.org/";

}  // namespace juego
