#pragma once

#include <QImage>

namespace platform::desktop {

/// Whether `large` is the same drawing as `picture`, at a whole number of times its size. Two renderings of one drawing
/// differ along their edges alone; a drawing that was changed anywhere is another one.
bool BelongTogether(const QImage& picture, const QImage& large);

}  // namespace platform::desktop
