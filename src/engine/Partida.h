#pragma once

#include <functional>

#include "commentary/Comentario.h"
#include "engine/Final.h"
#include "game/Modos.h"
#include "game/Zarpi.h"
#include "sound/Sonido.h"
#include "words/Sorteo.h"

namespace juego {

/// The dialogs that the course of a game opens.
struct PantallasPartida {
    Form& Nivel;
    Form& Puntos;
    Form& Nombre;
};

/// How a game begins, and how every word begins.
class Partida {
public:
    Partida(Zarpi& zarpi, Forms& forms, Media& media, const Clock& clock, Sorteo& sorteo, Música& música,
            Comentario& comentario, Final& fin, PantallasPartida screens)
        : z(zarpi),
          forms(forms),
          media(media),
          clock(clock),
          sorteo(sorteo),
          música(música),
          comentario(comentario),
          fin(fin),
          screens(screens) {}

    /// Starts a new game.
    void mnuNuevo_Click();
    /// Starts the game whose saved fields have been set.
    void NuevoReanudar();
    /// From the end of a word to the next one in play, or from word 30 to the win.
    void SiguientePalabra();

private:
    void AbrirTablero();
    void VaciarTablero();
    void SacarPalabra();
    void Alternar();
    [[nodiscard]] bool EsCastellana() const;
    void SinAcentos();
    void ColocarRecuadros();
    void MostrarPalabra(const Nivel& level);
    void AbrirPalabra(bool firstOfLevel);
    void ComodínPalabra16();

    Zarpi& z;
    Forms& forms;
    Media& media;
    const Clock& clock;
    Sorteo& sorteo;
    Música& música;
    Comentario& comentario;
    Final& fin;
    PantallasPartida screens;
};

}  // namespace juego
