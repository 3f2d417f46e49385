#pragma once

#include <memory>

#include "desktop/system/GameFolder.h"
#include "platform/Services.h"

namespace platform::desktop {

/// The whole platform: windows, sound, printer, files. There is one in a program.
///
///     int main(int argc, char** argv) {
///         platform::desktop::Desktop desktop(argc, argv);
///         if (!desktop.EnterFolder(keeper)) return EXIT_SUCCESS;
///         Game game(desktop.Services());
///         game.Start();
///         return desktop.Run();
///     }
class Desktop {
public:
    Desktop(int& argc, char** argv);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// Settles the game folder, which is the current one from here on. False if a game is already running there: it
    /// comes to the front, or the player is told. To be called before anything is read or stored.
    bool EnterFolder(const GameFolder::Keeper& keeper);

    /// What the game works with; lives as long as this does.
    platform::Services& Services();

    /// Takes the player's input until no form is open. The exit status of the program.
    int Run();

private:
    class Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace platform::desktop
