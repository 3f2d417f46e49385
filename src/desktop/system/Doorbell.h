#pragma once

#include <QFileSystemWatcher>
#include <functional>

namespace platform::desktop {

/// By which a second start of the game has the first one come to the front: a file in the game folder, the current one,
/// that whoever rings puts there and whoever answers takes away.
class Doorbell {
public:
    /// Calls `come` whenever somebody rings, from here on.
    void Answer(std::function<void()> come);

    /// Rings, and waits up to a second. False: nobody has answered.
    static bool Ring();

private:
    void Look() const;

    QFileSystemWatcher door_;
    std::function<void()> come_;
};

}  // namespace platform::desktop
