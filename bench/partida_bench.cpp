#include <benchmark/benchmark.h>

#include "Jugador.h"

namespace {

/// Knows every word, and wins.
class JugadorQueSabe : public Jugador {
public:
    explicit JugadorQueSabe(int mode) : mode_(mode) {}

    /// Plays a game to its end; false if it was not won.
    bool Win() {
        moves_ = 5000;
        Restart();
        Run();
        return fault_.empty() && Game().Modo == mode_ && Game().plenos == 30;
    }

private:
    void Move() override {
        if (&Front() != windows_.front()) return PressKey(kEnter);
        if (!started_) {
            Start();
        } else if (Game().fFinPartida) {
            moves_ = 0;
        } else if (const char16_t letter = GoodLetter(); letter != 0) {
            Press(letter);
        }
    }

    void Start() {
        started_ = true;
        const auto& mode = juego::Modos.at(static_cast<std::size_t>(mode_ - 1));
        Hand().Click(static_cast<juego::VentanaZarpi&>(*windows_.front()).*mode.Entrada);
        Hand().Click(*windows_.front()->Find("mnuNuevo"));
    }

    int mode_;
    bool started_ = false;
};

/// A whole game of thirty words, from the start of the program to the diploma, in each mode.
void Partida(benchmark::State& state) {
    for (auto _ : state) {
        JugadorQueSabe player(static_cast<int>(state.range(0)));
        if (!player.Win()) state.SkipWithError("the game was not won");
    }
}
BENCHMARK(Partida)->DenseRange(1, 5)->Unit(benchmark::kMillisecond);

}  // namespace
