#pragma once

#include <string>

namespace platform::desktop {

/// The file that sounds for a piece of music: the `.ogg` beside a `.mid` if it says in its comments that it was
/// rendered from these very notes, `source=sha1:` and the digest of the `.mid`; else the `.mid` itself, a piece of the
/// player's own. Names are UTF-8, by bare name.
std::string FileToSound(const std::string& midi);

}  // namespace platform::desktop
