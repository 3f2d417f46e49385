#pragma once

#include "records/Archivos.h"

namespace juego {

/// A change of a pair of files that takes several writes, and that an interruption may not leave half done: what the
/// pair held is written down first. Until `Confirmar` the change can be taken back, by the destructor if a write has
/// failed, and by the next start of the program if this one was stopped.
///
///     Diario diario(files, pair);
///     return diario.Anotado() && rows.AbrirHueco(...) && ... && diario.Confirmar();
class Diario {
public:
    Diario(Files& files, const Par& par);
    ~Diario();
    Diario(const Diario&) = delete;
    Diario& operator=(const Diario&) = delete;

    /// Whether the content has been written down; without it nothing may be changed.
    [[nodiscard]] bool Anotado() const { return noted_; }

    /// The change stands. False if that could not be noted; it is taken back then.
    bool Confirmar();

    /// Takes back a change in the middle of which the program was stopped. Called once at its start.
    static void Recuperar(Files& files);

private:
    Files& files_;
    bool noted_ = false;
};

}  // namespace juego
