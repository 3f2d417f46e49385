#pragma once

#include <utility>

#include "game/Zarpi.h"

namespace juego {

/// Shows a message on the main window. Another one may take its place before the event is over; to those who listen
/// both are told.
inline void Decir(Zarpi& z, Text mensaje) {
    z.Mensajes.push_back({mensaje, z.Traducción.empty() ? Text() : z.PalabraMensaje});
    z.Label5.Caption = std::move(mensaje);
}

}  // namespace juego
