#pragma once

#include <QSize>
#include <QString>

namespace platform::desktop {

/// Whether the file `large` shows the picture of the file `picture`, whose size is `own`, at `times` its size. A file
/// that the game brings tells the picture that it was drawn with, `source` and the digest of that file; one of the
/// player's own tells nothing.
bool BelongTogether(const QString& picture, QSize own, const QString& large, int times);

}  // namespace platform::desktop
