// zarpi: the game in its window.

#include "desktop/Desktop.h"
#include "shell/Juego.h"

int main(int argc, char** argv) {
    platform::desktop::Desktop desktop(argc, argv);
    juego::Juego juego(desktop.Services());
    juego.Start();
    return desktop.Run();
}
