#pragma once

#include <QPixmap>
#include <QSize>
#include <string>

#include "desktop/Scale.h"
#include "platform/Controls.h"

namespace platform::desktop {

/// The pictures of the elements, in the pixels of the screen. A picture "NAME.png" may have "NAME@2x.png" beside it, of
/// twice its size, which is taken where the factor asks for more pixels. Small pictures are kept for the next time.
class Pictures {
public:
    explicit Pictures(const Scale& scale) : scale_(scale) {}

    /// The picture of an element in its own size; null if it cannot be read.
    [[nodiscard]] QPixmap OwnSize(const PictureLook& look) const;
    /// The picture of an element scaled to `size`; null if it cannot be read.
    [[nodiscard]] QPixmap Fitted(const PictureLook& look, QSize size) const;
    /// A picture stored with a form scaled to `size`; null if there is none.
    [[nodiscard]] QPixmap Stored(const std::string& name, QSize size) const;

private:
    const Scale scale_;
};

}  // namespace platform::desktop
