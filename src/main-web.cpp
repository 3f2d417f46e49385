// zarpi.wasm: the game in a page of a browser.

#include <algorithm>
#include <array>

#include "records/Archivos.h"
#include "shell/Juego.h"
#include "web/Browser.h"
#include "web/Page.h"

namespace {

constexpr std::size_t kArea = 65536;

/// The memory that holds the program while it waits, behind its begin and its end.
struct Area {
    char* begin;
    char* end;
    alignas(16) std::array<char, kArea> memory;
};

/// A player's first start: the counters of all lists are there and tell nothing.
void Furnish(juego::Files& files) {
    const auto furnish = [&files](const juego::Par& par) {
        if (!files.Read(par.Contador)) juego::EscribirContador(files, par, 0);
    };
    if (files.Read(juego::ArchivoGuardadas.Contador) || files.Read(juego::ArchivoGuardadas.Registros)) return;
    furnish(juego::ArchivoGuardadas);
    furnish(juego::ArchivoÚltimas);
    std::ranges::for_each(juego::ArchivosHonor, furnish);
}

}  // namespace

extern "C" {

ZARPI_EXPORT("area") Area* zarpi_area() {
    static Area area{};
    area.begin = area.memory.data();
    area.end = area.begin + kArea;
    return &area;
}

/// The program. Called again after each wait, it goes on where it was.
ZARPI_EXPORT("run") void zarpi_run() {
    platform::web::Browser browser;
    Furnish(browser.Services().Files);
    juego::Juego juego(browser.Services());
    browser.OnUnsaved([&juego] { juego.AvisarError(); });
    juego.Start();
    browser.Run();
}
}

#ifdef _LIBCPP_VERSION
// What the library finds broken stops the program, without the texts and streams that would tell it.
[[noreturn]] void std::__libcpp_verbose_abort(char const* /*format*/, ...) {
    __builtin_trap();
}
extern "C" [[noreturn]] void abort_message(char const* /*format*/, ...) {
    __builtin_trap();
}
#endif
