#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "records/Archivos.h"
#include "records/Diario.h"

/// The three record types. A record is a run of fixed-width fields of Windows-1252 text, numbers included, and padding.
namespace juego {

/// A saved game.
struct PartidaGuardada {
    static constexpr std::size_t Largo = ArchivoGuardadas.Largo;

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
    static constexpr std::size_t Largo = LargoFilaHonor;

    Text puntos;
    Text Nombre;
    Text plenos;
    Text Tiempo;
    Text Fecha;
};

/// A row of the last games. `Palabra` is the number of a word, or "FINAL".
struct FilaÚltima {
    static constexpr std::size_t Largo = ArchivoÚltimas.Largo;

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

    /// The first `count` records, in one read. Nothing when the file cannot be read.
    std::optional<std::vector<Registro>> LeerPrimeros(int count) {
        const auto bytes = files.ReadAt(name, 0, Length(count));
        if (!bytes) return std::nullopt;
        std::vector<Registro> records(static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < records.size(); ++i) {
            Decodificar(bytes->substr(std::min(i * Registro::Largo, bytes->size()), Registro::Largo), records[i]);
        }
        return records;
    }

    /// False on failure.
    bool Escribir(int k, const Registro& record) { return files.WriteAt(name, Offset(k), Codificar(record)); }

    /// Makes the first `count` records all blank. False on failure.
    bool Vaciar(int count) { return files.WriteAt(name, 0, std::string(Length(count), ' ')); }

    /// Opens a place at `k` in a list of `count` records: those from there on move down. False on failure.
    bool AbrirHueco(int k, int count) { return Mover(k, count, k + 1); }

    /// Closes the place of record k in a list of `count`: those behind it move up. False on failure.
    bool CerrarHueco(int k, int count) { return Mover(k + 1, count, k); }

private:
    static std::size_t Length(int count) { return static_cast<std::size_t>(count) * Registro::Largo; }
    static std::int64_t Offset(int k) { return static_cast<std::int64_t>(Length(k - 1)); }

    /// Copies the whole records from `first` to `last`, padding included, to the places from `to` on, in one write.
    bool Mover(int first, int last, int to) {
        if (last < first) return true;
        auto bytes = files.ReadAt(name, Offset(first), Length(last - first + 1));
        if (!bytes) return false;
        bytes->resize(Length(last - first + 1), ' ');
        return files.WriteAt(name, Offset(to), *bytes);
    }

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
