#pragma once

#include <QLockFile>
#include <QString>
#include <functional>
#include <memory>

#include "platform/Services.h"

namespace platform::desktop {

/// The current folder of the program, where it finds its pictures and sounds and keeps what it stores.
///
/// A folder that holds the game's files is played in where it is: the current one (a portable copy, a test), else that
/// of the program. An installed program plays in the player's own data folder, which it furnishes at its first start.
class GameFolder {
public:
    struct Places {
        QString Program;  ///< the folder of the running program
        QString Shared;   ///< the folder of the installed game's files
        QString Own;      ///< the player's own data folder; need not exist yet
    };
    /// The places of an installed program on this system.
    static Places SystemPlaces();

    /// Stores what a new folder of the game begins with. False on failure.
    using Furnisher = std::function<bool(Files& files)>;

    /// Makes the game folder the current one and keeps other programs out of it. Where nothing is to be found or to be
    /// furnished it stays where it is. False if a game is already running there.
    bool Enter(const Places& places, const Furnisher& furnish);
    /// Lets the next program in.
    void Leave();

private:
    bool Lock();

    std::unique_ptr<QLockFile> lock_;
};

}  // namespace platform::desktop
