#pragma once

#include "game/Zarpi.h"

/// The hero's poses and the scenery.
namespace juego {

/// Top of the hero who stands on the ledge, twips.
constexpr int TopeZarpi = -60;

/// The bitmap of a pose, by its number.
Text Pose(int number);

/// Hero and pusher at their start, no wrong letters: at the start of each word.
void ReponerEscena(Zarpi& zarpi);

/// Gives the three running positions to the pusher's plate, its rod and the hero.
void ColocarEmpujador(Zarpi& zarpi);

/// The hero's face when the time limit ends a game.
void CaraTiempo(Zarpi& zarpi);

/// The scene of the word in play; each five words have their own.
void SeleccionarFondo(Zarpi& zarpi);

/// Takes all scenes away.
void OcultarFondos(Zarpi& zarpi);

/// Takes the keys of the on-screen keyboard away, with their panel.
void OcultarTeclas(Zarpi& zarpi);

/// Takes the on-screen keyboard away, and the buttons that show and hide it.
void OcultarTeclado(Zarpi& zarpi);

/// Takes away what a fall has left at the foot of the cliff.
void RetirarCaída(Zarpi& zarpi);

/// Takes the hero's words after a fall away.
void CallarCaída(Zarpi& zarpi);

}  // namespace juego
