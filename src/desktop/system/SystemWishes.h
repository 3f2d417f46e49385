#pragma once

#include <QObject>
#include <functional>

#include "platform/Wishes.h"

namespace platform::desktop {

/// Asks the system for the player's wishes: on Windows its settings, elsewhere the desktop's portal.
class SystemWishes : public QObject {
public:
    /// Asks now, and again whenever the player comes back to the game, who may have changed them meanwhile. No call
    /// waits for an answer. What has changed is told; to begin with there are no wishes.
    void Watch(std::function<void(const Wishes&)> tell);

private:
    void Ask();
    void Hear(const Wishes& wishes);

    std::function<void(const Wishes&)> tell_;
    Wishes heard_;
};

}  // namespace platform::desktop
