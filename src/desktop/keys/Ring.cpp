#include "desktop/keys/Ring.h"

#include <QPaintEngine>
#include <QPainter>

namespace platform::desktop {

Ring::Ring(QWidget& client, const Scale& scale, Qt::GlobalColor bright)
    : QWidget(&client), scale_(scale), bright_(bright) {
    setObjectName("ring");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

int Ring::Band() const {
    constexpr int kBand = 3;  // at factor 1
    return scale_.LineWidth(kBand);
}

void Ring::Surround(const QWidget* widget) {
    setVisible(widget != nullptr);
    if (widget == nullptr) return;
    const int margin = 2 * Band();
    const QRect box = widget->geometry().adjusted(-margin, -margin, margin, margin) & parentWidget()->rect();
    if (box != geometry()) setGeometry(box);
    if (dynamic_cast<const Ring*>(parentWidget()->children().last()) == nullptr) raise();
}

void Ring::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    // A page shows the window, not where the keys are.
    if (painter.paintEngine()->type() != QPaintEngine::Raster) return;
    const int width = Band();
    const auto band = [&](int inset, Qt::GlobalColor color) {
        const QRect outer = rect().adjusted(inset, inset, -inset, -inset);
        const QRegion inner(outer.adjusted(width, width, -width, -width));
        painter.setClipRegion(QRegion(outer) - inner);
        painter.fillRect(outer, color);
    };
    band(0, Qt::black);
    band(width, bright_);
}

}  // namespace platform::desktop
