#pragma once

#include <QStringList>

#include "platform/Text.h"

namespace platform::desktop {

/// Tells the folders where the game's pictures and sounds are looked for, the first one first.
void SetAssetFolders(const QStringList& folders);

/// The path of a picture or a sound by its name, as the toolkit's files understand it.
QString AssetPath(TextView name);

}  // namespace platform::desktop
