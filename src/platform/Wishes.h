#pragma once

namespace platform {

/// What a player has asked of his system for all programs.
struct Wishes {
    bool HighContrast = false;  ///< letters that stand out clearly from their ground
    bool Stillness = false;     ///< nothing blinks

    bool operator==(const Wishes&) const = default;
};

}  // namespace platform
