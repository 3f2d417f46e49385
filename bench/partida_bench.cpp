#include <benchmark/benchmark.h>

#include "Jugador.h"

namespace {

/// A whole game of thirty words, from the start of the program to the diploma, in each mode.
void Partida(benchmark::State& state) {
    for (auto _ : state) {
        JugadorQueSabe player(static_cast<int>(state.range(0)));
        if (!player.Win().empty()) state.SkipWithError("the game was not won");
    }
}
BENCHMARK(Partida)->DenseRange(1, 5)->Unit(benchmark::kMillisecond);

}  // namespace
