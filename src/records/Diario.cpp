#include "records/Diario.h"

#include <algorithm>
#include <charconv>

namespace juego {

namespace {

constexpr std::string_view kName = "Diario.tmp";
constexpr std::string_view kSetAside = "Diario.mal";
constexpr int kMostSetAside = 99;

/// What a journal holds: the pair it is about, its records that counted, and its counter.
struct Contenido {
    const Par* Cuál;
    std::string_view Registros;
    std::string_view Contador;
    int Cuenta;
};

std::string Entry(std::string_view name, std::string_view content) {
    return std::string(name) + ' ' + std::to_string(content.size()) + '\n' + std::string(content);
}

/// The journal of a pair as it is now; nothing if the pair cannot be read, or is longer than a journal is read.
std::optional<std::string> JournalOf(Files& files, const Par& par) {
    const auto counter = files.Read(par.Contador);
    const auto count = counter ? NúmeroDeContador(*counter, par) : std::nullopt;
    if (!count) return std::nullopt;
    const auto records = files.ReadAt(par.Registros, 0, static_cast<std::size_t>(*count) * par.Largo);
    if (!records) return std::nullopt;
    std::string journal = Entry(par.Registros, *records) + Entry(par.Contador, *counter);
    if (journal.size() > Files::kLongestRead) return std::nullopt;
    return journal;
}

/// Takes the entry of a file from the head of a journal: its content. Nothing if it is none, or longer than the file
/// can have been.
std::optional<std::string_view> TakeEntry(std::string_view& journal, std::string_view name, std::size_t longest) {
    const auto end = journal.find('\n');
    if (end == std::string_view::npos || !journal.starts_with(name) || journal[name.size()] != ' ') return std::nullopt;
    const char* const lengthEnd = journal.data() + end;
    int length = 0;
    const auto number = std::from_chars(journal.data() + name.size() + 1, lengthEnd, length);
    if (number.ec != std::errc() || number.ptr != lengthEnd || length < 0) return std::nullopt;
    journal.remove_prefix(end + 1);
    const auto size = static_cast<std::size_t>(length);
    if (size > longest || size > journal.size()) return std::nullopt;
    const auto content = journal.substr(0, size);
    journal.remove_prefix(size);
    return content;
}

/// A journal of this pair as the game writes it, records first, and nothing behind the counter.
std::optional<Contenido> ParseAs(const Par& par, std::string_view journal) {
    // One record more than the list holds may lie in its file: the one that fell off.
    const auto longest = static_cast<std::size_t>(par.Límite + 1) * par.Largo;
    const auto records = TakeEntry(journal, par.Registros, longest);
    const auto counter = records ? TakeEntry(journal, par.Contador, journal.size()) : std::nullopt;
    const auto count = counter && journal.empty() ? NúmeroDeContador(*counter, par) : std::nullopt;
    if (!count) return std::nullopt;
    return Contenido{&par, *records, *counter, *count};
}

/// The one journal that is trusted is one that the game can have written.
std::optional<Contenido> Parse(std::string_view journal) {
    for (const Par& par : Pares) {
        if (auto noted = ParseAs(par, journal)) return noted;
    }
    return std::nullopt;
}

/// Whether a file of the pair is a link, by which a journal would write outside the folder.
bool LeadsAway(Files& files, const Par& par) {
    return files.IsLink(par.Registros) || files.IsLink(par.Contador);
}

/// Gives the pair back what it held. What stands there already is not written again: a full disk and a file that may
/// only be read let it stand. Nothing is deleted; where records were missing there are blank ones, which read the same.
bool Restore(Files& files, const Contenido& noted) {
    const Par& par = *noted.Cuál;
    std::string records(noted.Registros);
    records.resize(std::max(records.size(), static_cast<std::size_t>(noted.Cuenta) * par.Largo), ' ');
    auto present = files.ReadAt(par.Registros, 0, records.size());
    if (!present) return false;
    present->resize(records.size(), ' ');
    if (*present != records && !files.WriteAt(par.Registros, 0, records)) return false;
    return files.Read(par.Contador) == noted.Contador || files.Replace(par.Contador, noted.Contador);
}

/// Gives a journal that cannot be trusted another name, one that is free.
bool SetAside(Files& files) {
    for (int n = 1; n <= kMostSetAside; ++n) {
        std::string name(kSetAside);
        if (n > 1) name += std::to_string(n);
        if (files.Rename(kName, name)) return true;
    }
    return false;
}

/// Takes back the change of a journal that waits.
bool TakeBack(Files& files, bool throughLinks) {
    const auto journal = files.Read(kName);
    if (!journal) return !files.Exists(kName);
    const auto noted = Parse(*journal);
    if (!noted) return SetAside(files);
    if (!throughLinks && LeadsAway(files, *noted->Cuál)) return false;
    return Restore(files, *noted) && files.Remove(kName);
}

}  // namespace

Diario::Diario(Files& files, const Par& par) : files_(files) {
    // A journal that waits may be the only place where its records stand whole: it is never replaced.
    if (files_.Exists(kName)) return;
    const auto journal = JournalOf(files_, par);
    noted_ = journal && files_.Replace(kName, *journal);
}

Diario::~Diario() {
    // What cannot be taken back now stays noted. This change has gone through the player's links, and so goes back.
    if (noted_) static_cast<void>(TakeBack(files_, true));
}

bool Diario::Confirmar() {
    if (!files_.Remove(kName)) return false;
    noted_ = false;
    return true;
}

bool Diario::Recuperar(Files& files) {
    return TakeBack(files, false);
}

std::optional<int> ContarParaCambiar(Files& files, const Par& par) {
    return Diario::Recuperar(files) ? LeerContador(files, par) : std::nullopt;
}

}  // namespace juego
