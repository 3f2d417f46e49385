#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "engine/Comodines.h"
#include "engine/Letras.h"
#include "engine/Partida.h"
#include "engine/Reloj.h"
#include "game/AvisoError.h"
#include "game/Campos.h"
#include "stage/Empujador.h"
#include "voice/Voz.h"
#include "windows/frmAcerca.h"
#include "windows/frmCuadro.h"
#include "windows/frmDiploma.h"
#include "windows/frmFecha.h"
#include "windows/frmNivel.h"
#include "windows/frmNombre.h"
#include "windows/frmNormas.h"
#include "windows/frmPresenta.h"
#include "windows/frmPuntos.h"
#include "windows/frmReanudar.h"
#include "windows/frmUltimas.h"

namespace juego {

/// The whole game put together on a platform: every part with what it needs, every element with its handler.
class Juego {
public:
    /// The services must outlive the game.
    explicit Juego(const Services& services);

    /// Loads the main window, which brings up the presentation.
    void Start();

    /// Shows the error notice: the platform has learned later that something written could not be stored.
    void AvisarError() { MostrarErrorAlFrente(z); }

    /// All windows, the main one first.
    [[nodiscard]] std::vector<Form*> Ventanas();
    /// A field of a window, by their names; nothing if there is none.
    [[nodiscard]] std::optional<Valor> Campo(std::string_view form, std::string_view field) const;

private:
    void Form_Load();
    void ConectarVentana();
    void ConectarMenús();
    void ConectarVoz();
    bool TeclaDeAyuda(const Key& key);
    void AvisarComodín();
    void Premiar();

    Services s;
    Zarpi z;
    frmCastellano castellano;
    frmInglés inglés;
    ÍndicesPalabras índices{castellano.Aleator, inglés.Alea};

    Música música{z, s.Media, s.Random, s.Clock};
    Comentario comentario{z, s.Random, s.Clock};
    Secuencias secuencias{z, comentario};
    Empujador empujador{z, s.Media, comentario};
    Sorteo sorteo{z, castellano, inglés, s.Random, s.Clock};

    frmNivel nivel{z, s.Forms};
    frmPuntos tanteo{z, s.Forms, s.Media};
    frmNombre nombre{z, s.Forms};
    frmCuadro cuadro{z, s.Forms, s.Files, s.Printer};
    frmÚltimas últimas{z, s.Forms, s.Files, s.Printer};
    frmFecha victoria{z, s.Forms, s.Files, s.Media, s.Clock, música, [this] { Premiar(); }};
    frmDiploma diploma{z, s.Forms, s.Printer, s.Media, victoria.FechaCua};

    Final fin{z, s.Forms, s.Files, s.Clock, empujador, secuencias, victoria};
    Partida partida{z, s.Forms, s.Media, s.Clock, sorteo, música, comentario, fin, {nivel, tanteo, nombre}};
    Letras letras{z, s.Dialogs, empujador, secuencias, fin, [this] { partida.SiguientePalabra(); }};
    Comodines comodines{z, s.Media, letras};
    Reloj reloj{z, s.Forms, s.Media, s.Clock, fin};

    frmGuardar guardar{z, s.Forms, s.Dialogs, s.Files, s.Clock, índices, [this] { fin.PartidaGuardada(); }};
    frmReanudar reanudar;
    frmPresenta presenta{z, s.Forms};
    frmNormas normas{s.Forms};
    frmAcerca acerca{z, s.Forms, s.Media, s.Web};
    Voz voz{z, s.Forms, s.Speech};
    bool elegirCasilla = false;  ///< the joker has been armed by its key: digits choose the box
};

}  // namespace juego
