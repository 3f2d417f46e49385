// zarpi.wasm: the game in a page of a browser.

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "records/Archivos.h"
#include "shell/Juego.h"
#include "web/Browser.h"
#include "web/Page.h"

namespace {

constexpr std::size_t kArea = 65536;
constexpr std::size_t kCounter = 64;  // bytes, many more than a counter has

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

/// The pairs of stored files, a line each: the name of the counter, that of the records, and how long each can be, in
/// bytes.
ZARPI_EXPORT("pairs") const char* zarpi_pairs() {
    static const std::string pairs = [] {
        std::string text;
        for (const juego::Par& par : juego::Pares) {
            // A list that is full keeps the row that has fallen off.
            const std::size_t longest = (static_cast<std::size_t>(par.Límite) + 1) * par.Largo;
            text.append(par.Contador).append(" ").append(par.Registros);
            text.append(" ").append(std::to_string(kCounter)).append(" ").append(std::to_string(longest)).append("\n");
        }
        return text;
    }();
    return pairs.c_str();
}

/// The place for the content of a counter that `fit` is asked about.
ZARPI_EXPORT("counter") char* zarpi_counter() {
    static std::array<char, kCounter> counter;
    return counter.data();
}

/// Whether the files of a pair, by its number from 0, fit each other: a counter of `length` bytes and `records` bytes
/// of records.
ZARPI_EXPORT("fit") bool zarpi_fit(std::size_t pair, std::size_t length, std::size_t records) {
    return juego::Encajan({zarpi_counter(), std::min(length, kCounter)}, records, juego::Pares.at(pair));
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
