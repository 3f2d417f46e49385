#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <future>
#include <string>

#include "desktop/values/Scale.h"
#include "platform/Controls.h"

namespace platform::desktop {

/// The pictures of the elements, in the pixels of the screen. A picture "NAME.png" may have "NAME@2x.png" and
/// "NAME@4x.png" beside it, of twice and four times its size: the smallest that has all the pixels that are asked for
/// is taken. Only the folder that holds the picture is searched for them. Small pictures are kept in memory.
class Pictures {
public:
    explicit Pictures(const Scale& scale);

    /// The pixels that a picture file has; invalid if it cannot be read.
    [[nodiscard]] QSize SizeOf(TextView file) const;
    /// The picture of an element in its own size; null if it cannot be read.
    [[nodiscard]] QPixmap OwnSize(const PictureLook& look) const;
    /// The picture of an element scaled to `size`; null if it cannot be read.
    [[nodiscard]] QPixmap Fitted(const PictureLook& look, QSize size) const;
    /// A picture stored with a form scaled to `size`; null if there is none.
    [[nodiscard]] QPixmap Stored(const std::string& name, QSize size) const;
    /// A picture stored with a form, in its own size or as much larger as it takes to cover `area`; null if there is
    /// none. A large one takes longer than all else in a window, so it is read beside the window's making: `get` waits.
    [[nodiscard]] std::future<QImage> Covering(const std::string& name, QSize area) const;

private:
    const Scale& scale_;
};

}  // namespace platform::desktop
