#pragma once

namespace platform::desktop {

/// Lets screen readers meet the windows as the game names them: a window with its title, and in it the elements that
/// have a name, in reading order; what answers a click can be pressed. To be called once, before the first window.
void InstallAccess();

}  // namespace platform::desktop
