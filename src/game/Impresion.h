#pragma once

#include "platform/Services.h"

namespace juego {

/// Prints what a window shows, on a printer that the player chooses. False: he has cancelled.
inline bool Imprimir(platform::Printer& printer, const platform::Form& form) {
    if (!printer.ShowDialog()) return false;
    printer.PrintForm(form);
    return true;
}

}  // namespace juego
