#pragma once

#include "records/Archivos.h"

namespace juego {

/// A change of a pair of files that takes several writes, and that neither an interruption nor a fault of the disk may
/// leave half done: what the pair held is written down first, in the journal. Until `Confirmar` the change can be taken
/// back: by the destructor if a write has failed, and as soon as it can be done if that fails too or the program is
/// stopped. While a journal waits for that nothing else is changed.
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

    /// Takes back the change of a journal that waits. True when none waits any more. Whatever lies in its place without
    /// being one that the game can have written is set aside as it is, as `Diario.mal`, and nothing of it is done. One
    /// about a file that is a link waits until the player has put the file itself there: who wrote it is not known, and
    /// the file that the link leads to lies elsewhere.
    [[nodiscard]] static bool Recuperar(Files& files);

private:
    Files& files_;
    bool noted_ = false;
};

/// The number of records in a pair that is about to be changed: a change that waits is taken back first, and while that
/// fails there is none.
std::optional<int> ContarParaCambiar(Files& files, const Par& par);

}  // namespace juego
