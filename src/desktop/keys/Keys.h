#pragma once

#include <QKeyEvent>
#include <optional>

#include "platform/Key.h"

namespace platform::desktop {

/// Reads key presses. Alt makes no character (it belongs to the menus), AltGr does; an accent that waits for its letter
/// makes one character with it, also where the system does not put them together.
class KeyReader {
public:
    /// The key of a press; none while an accent waits, or when an accent does not go with the letter.
    std::optional<Key> Read(const QKeyEvent& press);

private:
    QChar accent_;
};

}  // namespace platform::desktop
