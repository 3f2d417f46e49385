#include "records/Diario.h"

#include <charconv>

namespace juego {

namespace {

constexpr std::string_view kName = "Diario.tmp";

/// One file in the journal: its name, its length and its bytes. A file that was not there has the length -1.
std::string Entry(Files& files, std::string_view name) {
    const auto content = files.Read(name);
    const std::string length = content ? std::to_string(content->size()) : "-1";
    return std::string(name) + " " + length + "\n" + content.value_or("");
}

/// Gives a file the content of its entry at the head of the journal and takes the entry away. False when the journal is
/// at its end, or when it cannot be done.
bool RestoreFirst(Files& files, std::string_view& journal) {
    const auto blank = journal.find(' ');
    const auto end = journal.find('\n');
    if (end == std::string_view::npos || blank >= end) return false;
    const std::string_view name = journal.substr(0, blank);
    int length = 0;
    std::from_chars(journal.data() + blank + 1, journal.data() + end, length);
    journal.remove_prefix(end + 1);
    if (length < 0) return files.Remove(name);
    const std::string_view content = journal.substr(0, static_cast<std::size_t>(length));
    journal.remove_prefix(content.size());
    // A counter changes in one step. Records go back to their places, which need no room that a full disk has not.
    return name.ends_with(".dat") ? files.Replace(name, content) : files.WriteAt(name, 0, content);
}

}  // namespace

Diario::Diario(Files& files, const Par& par) : files_(files) {
    noted_ = files_.Replace(kName, Entry(files_, par.Registros) + Entry(files_, par.Contador));
}

Diario::~Diario() {
    if (noted_) Recuperar(files_);
}

bool Diario::Confirmar() {
    if (!files_.Remove(kName)) return false;
    noted_ = false;
    return true;
}

void Diario::Recuperar(Files& files) {
    const auto journal = files.Read(kName);
    if (!journal) return;
    std::string_view rest = *journal;
    while (!rest.empty()) {
        // What could not be restored now stays noted for the next start.
        if (!RestoreFirst(files, rest)) return;
    }
    files.Remove(kName);
}

}  // namespace juego
