#pragma once

#include "store/Archivos.h"
#include "store/AvisoError.h"

namespace juego {

/// How many games are stored. A counter that cannot be read counts as 0 and is told by the error notice.
inline int ContarGuardadas(Zarpi& zarpi, Files& files) {
    const auto count = LeerContador(files, ArchivoGuardadas);
    if (!count) MostrarErrorAlFrente(zarpi);
    return count.value_or(0);
}

}  // namespace juego
