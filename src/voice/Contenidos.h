#pragma once

#include <vector>

#include "platform/Form.h"

namespace juego {

/// What a window has to tell when it comes up, in the order of weight, each line by itself; none for the main one. A
/// line that ends in a colon is the heading of those behind it.
std::vector<platform::Text> ContenidoDe(const platform::Form& form);

}  // namespace juego
