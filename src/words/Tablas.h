#pragma once

#include "platform/Text.h"

/// The two vocabularies of 4,000 key words. A saved game refers to an entry by its index, so an index means the same
/// entry for ever.
namespace juego {

constexpr int NúmEntradas = 4000;

/// The entry of this index, 1 to 4,000; empty for any other.
platform::Text PalabraCastellana(int index);
platform::Text PalabraInglesa(int index);

/// The Spanish translation of the English word of this index, without a full stop.
platform::Text TraducciónDeInglesa(int index);

}  // namespace juego
