#pragma once

#include <algorithm>
#include <string>

#include "records/Archivos.h"
#include "records/Diario.h"

/// The three record types. A record is a run of fixed-width fields of Windows-1252 text, numbers included, and padding.
namespace juego {

/// A saved game.
struct PartidaGuardada {
    static constexpr std::size_t Largo = 65;

    Integer NúmPalabra = 0;
    Integer Modo = 0;
    Integer Alter = 0;
    Integer Tiempo = 0;
    Integer puntos = 0;
    Integer plenos = 0;
    Integer comodines = 0;
    Text Nombre;  ///< read with the blanks of its field, like all texts
    Text Fecha;
    Text Contraseña;
    Integer Aleator = 0;
    Integer Alea = 0;
};

/// A row of an honour board. Its numbers stay the text of their fields, as the board shows them.
struct FilaHonor {
    static constexpr std::size_t Largo = 42;

    Text puntos;
    Text Nombre;
    Text plenos;
    Text Tiempo;
    Text Fecha;
};

/// A row of the last games. `Palabra` is the number of a word, or "FINAL".
struct FilaÚltima {
    static constexpr std::size_t Largo = 57;

    Text Palabra;
    Text Nombre;
    Text puntos;
    Text plenos;
    Integer Modo = 0;
    Text Tiempo;
    Text Fecha;
};

/// The number in the text of a field: its leading digits behind the blanks, 0 without digits.
Integer NúmeroDeCampo(TextView field);

/// A record as its bytes, `Largo` of them; a text too long for its field is cut.
std::string Codificar(const PartidaGuardada& record);
std::string Codificar(const FilaHonor& record);
std::string Codificar(const FilaÚltima& record);

/// Bytes as a record. Any content is accepted: a number without digits reads 0, missing bytes are blanks.
void Decodificar(std::string bytes, PartidaGuardada& record);
void Decodificar(std::string bytes, FilaHonor& record);
void Decodificar(std::string bytes, FilaÚltima& record);

/// The records of one file, counted from 1.
template <class Registro>
class ArchivoRegistros {
public:
    ArchivoRegistros(Files& files, const Par& par) : files(files), name(par.Registros) {}

    /// A record beyond the end of the file is blank. Nothing when the file cannot be read.
    std::optional<Registro> Leer(int k) {
        auto bytes = files.ReadAt(name, Offset(k), Registro::Largo);
        if (!bytes) return std::nullopt;
        Registro record;
        Decodificar(*std::move(bytes), record);
        return record;
    }

    /// False on failure.
    bool Escribir(int k, const Registro& record) { return files.WriteAt(name, Offset(k), Codificar(record)); }

    /// An all-blank record.
    bool Vaciar(int k) { return files.WriteAt(name, Offset(k), std::string(Registro::Largo, ' ')); }

    /// Copies the whole record a, padding included, to record b. False on failure.
    bool Mover(int a, int b) {
        auto bytes = files.ReadAt(name, Offset(a), Registro::Largo);
        if (!bytes) return false;
        bytes->resize(Registro::Largo, ' ');
        return files.WriteAt(name, Offset(b), *bytes);
    }

    /// Opens a place at `k` in a list of `count` records, highest first. False on failure.
    bool AbrirHueco(int k, int count) {
        for (int i = count; i >= k; --i) {
            if (!Mover(i, i + 1)) return false;
        }
        return true;
    }

    /// Closes the place of record k in a list of `count`, lowest first. False on failure.
    bool CerrarHueco(int k, int count) {
        for (int i = k + 1; i <= count; ++i) {
            if (!Mover(i, i - 1)) return false;
        }
        return true;
    }

private:
    static std::int64_t Offset(int k) { return static_cast<std::int64_t>(k - 1) * Registro::Largo; }

    Files& files;
    std::string_view name;
};

/// Puts a row into a list of `count` at place k: the rows from there on move down, the counter grows up to the limit of
/// the list. All of it happens or nothing; false if nothing.
template <class Registro>
bool InsertarFila(Files& files, const Par& par, int k, int count, const Registro& row) {
    Diario diario(files, par);
    ArchivoRegistros<Registro> rows(files, par);
    return diario.Anotado() && rows.AbrirHueco(k, count) &&
           EscribirContador(files, par, std::min(count + 1, par.Límite)) && rows.Escribir(k, row) && diario.Confirmar();
}

}  // namespace juego
