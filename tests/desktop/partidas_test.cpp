// The player who presses anything at any time, with mouse and keyboard in the real window.

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

#include "Jugador.h"

namespace {

constexpr int kFault = 255;

/// Plays a program until it ends or the moves are made, in a process that ends with it. The number of games, or kFault.
int Play(unsigned seed, int moves) {
    const pid_t child = fork();
    if (child == 0) {
        JugadorAlAzar player(seed);
        player.OnEnd = [&player] { std::_Exit(player.Games()); };
        const std::string fault = player.Play(moves);
        std::cerr << fault;
        std::_Exit(fault.empty() ? player.Games() : kFault);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : kFault;
}

/// ZARPI_WINDOW_GAMES asks for so many games; a short part by default.
TEST(PartidasEnVentana, HoldWhateverThePlayerDoes) {
    constexpr int kMoves = 400;
    constexpr int kTold = 100;
    const char* wanted = std::getenv("ZARPI_WINDOW_GAMES");
    const int least = wanted == nullptr ? 6 : std::atoi(wanted);
    int games = 0;
    for (unsigned round = 1; games < least; ++round) {
        const int played = Play(round, kMoves);
        ASSERT_NE(played, kFault) << "round " << round;
        if ((games + played) / kTold > games / kTold) std::cout << games + played << " games" << std::endl;
        games += played;
    }
}

}  // namespace
