// A player who presses anything at any time, and what must hold after each of his moves.

#include <gtest/gtest.h>
#include <random>

#include "Jugador.h"

namespace {

/// ZARPI_THOUSANDS asks for so many thousands of moves; a short part by default.
int Thousands() {
    const char* wanted = std::getenv("ZARPI_THOUSANDS");
    return wanted == nullptr ? 40 : std::atoi(wanted);
}

TEST(Partidas, HoldWhateverThePlayerDoes) {
    long games = 0;
    for (int round = 0; round < Thousands(); ++round) {
        JugadorAlAzar player(static_cast<unsigned>(round) + 1);
        const std::string fault = player.Play(1000);
        ASSERT_EQ(fault, "") << "round " << round;
        games += player.Games();
    }
    std::cout << games << " games\n";
    EXPECT_GT(games, Thousands());
}

}  // namespace
