// zarpi: the game in its window.

#include <cstdlib>

#include "desktop/Desktop.h"
#include "records/Archivos.h"
#include "shell/Juego.h"

int main(int argc, char** argv) {
    platform::desktop::Desktop desktop(argc, argv);
    if (!desktop.EnterFolder({.Holds = juego::HayArchivos, .Furnish = juego::EstrenarCarpeta})) return EXIT_SUCCESS;
    juego::Juego juego(desktop.Services());
    juego.Start();
    return desktop.Run();
}
