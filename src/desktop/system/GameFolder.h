#pragma once

#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "platform/Services.h"
#include "storage/FolderLock.h"

namespace platform::desktop {

/// The folder where the game keeps what it stores, which is the current one from `Enter` on, and the folders where it
/// finds its pictures and sounds (see Assets.h).
///
/// What is stored stays in the folder that has it: the current one (a test, a folder chosen by hand), else that of the
/// program (a portable copy). Everyone else plays in the player's own data folder. Pictures and sounds are looked for
/// in the folder of what is stored, so that the player's own win, then beside the program, then in the shared folder.
class GameFolder {
public:
    struct Places {
        QString Program;  ///< the folder of the running program
        QString Shared;   ///< the folder of the installed game's pictures and sounds
        QString Own;      ///< the player's own data folder; need not exist yet
    };
    /// The places of an installed program on this system.
    static Places SystemPlaces();

    /// What is to be known of a folder, which is then the current one of `files`.
    struct Keeper {
        std::function<bool(Files& files)> Holds;    ///< whether a player has stored anything in it
        std::function<bool(Files& files)> Furnish;  ///< stores what is missing in a new one; false on failure
    };

    enum class Entry {
        Free,       ///< the game plays here
        Taken,      ///< a game is already running here
        Temporary,  ///< no folder can be written: the game plays in one that goes away with it
    };
    /// Makes the game folder the current one and keeps other programs out of it.
    Entry Enter(const Places& places, const Keeper& keeper);
    /// Lets the next program in.
    void Leave();

private:
    storage::FolderLock lock_;
    std::unique_ptr<QTemporaryDir> temporary_;
};

}  // namespace platform::desktop
