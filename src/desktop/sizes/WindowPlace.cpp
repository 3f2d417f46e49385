#include "desktop/sizes/WindowPlace.h"

#include <algorithm>

namespace platform::desktop {

QRect PlaceOf(const FormLook& form, QSize content, const Scale& scale, const Surroundings& around) {
    QRect window = QRect(QPoint(), content).marginsAdded(around.frame);
    if (form.Left < 0 || !around.origin) {
        window.moveCenter(around.desk.center());
    } else {
        const QPoint corner = *around.origin + QPoint(scale.Pixels(form.Left), scale.Pixels(form.Top));
        window.moveTopLeft(corner - QPoint(around.frame.left(), around.frame.top()));
    }
    const QPoint last = around.desk.bottomRight() - QPoint(window.width() - 1, window.height() - 1);
    window.moveTopLeft({std::max(around.desk.left(), std::min(window.left(), last.x())),
                        std::max(around.desk.top(), std::min(window.top(), last.y()))});
    return window.marginsRemoved(around.frame);
}

}  // namespace platform::desktop
