// zarpi.wasm: the game in a page of a browser.

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
    if (browser.IsNew()) juego::EstrenarCarpeta(browser.Services().Files);
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
