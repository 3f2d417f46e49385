#pragma once

#include "platform/Form.h"

namespace juego {

/// What a window has to tell when it comes up, in the order of weight; empty for the main one.
platform::Text ContenidoDe(const platform::Form& form);

}  // namespace juego
