// zarpi.wasm: the game in a page of a browser.

#include <array>
#include <memory>

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

/// The game on its page.
struct Program {
    platform::web::Browser browser;
    juego::Juego juego{browser.Services()};
};

}  // namespace

extern "C" {

ZARPI_EXPORT("area") Area* zarpi_area() {
    static Area area{};
    area.begin = area.memory.data();
    area.end = area.begin + kArea;
    return &area;
}

/// Makes the game. It is a function of its own, because all code that can wait for the page is compiled larger and
/// slower, and this code never waits.
ZARPI_EXPORT("open") Program* zarpi_open() {
    return std::make_unique<Program>().release();
}

/// Plays. Called again after each wait, it goes on where it was.
ZARPI_EXPORT("run") void zarpi_run(Program* program) {
    platform::web::Browser& browser = program->browser;
    juego::Juego& juego = program->juego;
    juego::EstrenarCarpeta(browser.Services().Files);
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
