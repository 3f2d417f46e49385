#pragma once

#include <QFileSystemWatcher>
#include <chrono>
#include <functional>

#include "storage/FolderFiles.h"

namespace platform::desktop {

/// A second start of the game creates a file in the game folder, the current one; the running game sees it, removes it
/// and raises its window. (A local socket would need Qt's network library and eight more: 2 ms of every start.)
class Doorbell {
public:
    /// Calls `come` whenever somebody rings, at once if somebody already has.
    void Answer(std::function<void()> come);

    /// Rings, and waits; some seconds are enough for a game that is just starting to open its window. False: nobody has
    /// answered.
    static bool Ring(std::chrono::milliseconds patience = std::chrono::seconds(5));

private:
    void Look();

    storage::FolderFiles files_;
    QFileSystemWatcher door_;
    std::function<void()> come_;
};

}  // namespace platform::desktop
