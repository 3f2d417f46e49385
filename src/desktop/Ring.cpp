#include "desktop/Ring.h"

#include <QPaintEngine>
#include <QPainter>

namespace platform::desktop {

Ring::Ring(QWidget& client, Qt::GlobalColor bright) : QWidget(&client), bright_(bright) {
    setObjectName("ring");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Ring::Surround(const QWidget* widget, int band) {
    setVisible(widget != nullptr);
    if (widget == nullptr) return;
    band_ = band;
    const int margin = 2 * band_;
    const QRect box = widget->geometry().adjusted(-margin, -margin, margin, margin) & parentWidget()->rect();
    if (box != geometry()) setGeometry(box);
    if (dynamic_cast<const Ring*>(parentWidget()->children().last()) == nullptr) raise();
}

void Ring::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    // A page shows the window, not where the keys are.
    if (painter.paintEngine()->type() != QPaintEngine::Raster) return;
    const auto band = [&](int inset, Qt::GlobalColor color) {
        const QRect outer = rect().adjusted(inset, inset, -inset, -inset);
        const QRegion inner(outer.adjusted(band_, band_, -band_, -band_));
        painter.setClipRegion(QRegion(outer) - inner);
        painter.fillRect(outer, color);
    };
    band(0, Qt::black);
    band(band_, bright_);
}

}  // namespace platform::desktop
