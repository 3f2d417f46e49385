#include "desktop/keys/Ring.h"

#include <QPaintEngine>
#include <QPainter>

#include "desktop/views/FigureViews.h"

namespace platform::desktop {

Ring::Ring(QWidget& client, const Scale& scale, Style style) : QWidget(&client), scale_(scale), style_(style) {
    setObjectName("ring");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

int Ring::Reach() const {
    const int gap = style_.Gap < 0 ? -scale_.LineWidth(-style_.Gap) : style_.Gap * Band();
    return gap + (style_.Inner.isValid() ? 2 : 1) * Band();
}

void Ring::Surround(const QWidget* widget) {
    setVisible(widget != nullptr);
    if (widget == nullptr) return;
    const auto* const plate = dynamic_cast<const ShapeWidget*>(widget);
    rounding_ = plate == nullptr ? 0 : plate->Rounding();
    const int margin = Reach();
    const QRect box = widget->geometry().adjusted(-margin, -margin, margin, margin) & parentWidget()->rect();
    if (box != geometry()) setGeometry(box);
    if (dynamic_cast<const Ring*>(parentWidget()->children().last()) == nullptr) raise();
}

void Ring::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    // A page shows the window, not where the keys are.
    if (painter.paintEngine()->type() != QPaintEngine::Raster) return;
    painter.setRenderHint(QPainter::Antialiasing, rounding_ > 0);
    const auto band = [&](double inset, const QColor& color) {
        const double middle = inset + Band() / 2.0;
        const double radius = rounding_ > 0 ? qMax(1.0, rounding_ + Reach() - middle) : 0;
        painter.setPen({color, static_cast<double>(Band()), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
        painter.drawRoundedRect(QRectF(rect()).adjusted(middle, middle, -middle, -middle), radius, radius);
    };
    band(0, style_.Outer);
    if (style_.Inner.isValid()) band(Band(), style_.Inner);
}

const QWidget& PlateOf(const QWidget& widget) {
    constexpr int kLarger = 60;  // percent that a plate is larger at most; what is larger still frames other things too
    constexpr int kCovers = 90;  // percent of the widget that it lies behind at least
    const auto area = [](const QRect& box) { return box.width() * box.height(); };
    const int face = area(widget.geometry());
    for (const QObject* child : widget.parentWidget()->children()) {
        const auto* const shape = dynamic_cast<const ShapeWidget*>(child);
        if (shape == nullptr || shape->isHidden() || shape->Rounding() == 0) continue;
        const int covered = area(shape->geometry() & widget.geometry());
        if (100 * covered >= kCovers * face && 100 * area(shape->geometry()) <= (100 + kLarger) * face) return *shape;
    }
    return widget;
}

}  // namespace platform::desktop
