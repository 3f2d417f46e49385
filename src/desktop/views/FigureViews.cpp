#include "desktop/views/FigureViews.h"

#include <QPainter>

#include "desktop/values/Colors.h"

namespace platform::desktop {

namespace {

QPen PenOf(Color color, int lineWidth) {
    if (color.IsNone()) return {Qt::NoPen};
    return {ToQt(color), static_cast<qreal>(lineWidth), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

}  // namespace

void ShapeWidget::SetLook(const ShapeLook& look, int lineWidth, int rounding) {
    figure_ = look.Shape;
    rounding_ = look.Shape == Figure::RoundedRectangle ? rounding : 0;
    fill_ = look.FillColor.IsNone() ? QBrush(Qt::NoBrush) : QBrush(ToQt(look.FillColor));
    border_ = PenOf(look.BorderColor, lineWidth);
    update();
}

double ShapeWidget::Rounding() const {
    constexpr double kRounding = 0.25;  // of the shorter side
    return qMin<double>(rounding_, kRounding * qMin(width(), height()));
}

void ShapeWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setBrush(fill_);
    painter.setPen(border_);
    const double inset = border_.style() == Qt::NoPen ? 0 : border_.widthF() / 2;
    const QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setRenderHint(QPainter::Antialiasing);
    if (figure_ == Figure::Oval) {
        painter.drawEllipse(box);
    } else {
        painter.drawRoundedRect(box, Rounding(), Rounding());
    }
}

ShapeView::ShapeView(const Toolkit& toolkit, Shape& element, QWidget& client) : ElementView(toolkit, element, client) {
    if (element.Click) {
        TakeClicks();
    } else {
        widget_.setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

void ShapeView::Apply(const ShapeLook& look) {
    constexpr int kLargestRounding = 270;  // twips
    const Scale& scale = toolkit_.Scale;
    widget_.SetLook(look, scale.LineWidth(look.BorderWidth), scale.Pixels(kLargestRounding));
}

void LineWidget::SetPen(const QPen& pen) {
    pen_ = pen;
    update();
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const double half = pen_.widthF() / 2;
    const QPointF end(width() - half, height() - half);
    // A line is drawn along its middle; an upright or level one fills the widget.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen_);
    if (width() <= pen_.width()) {
        painter.drawLine(QPointF(half, 0), QPointF(half, height()));
    } else if (height() <= pen_.width()) {
        painter.drawLine(QPointF(0, half), QPointF(width(), half));
    } else {
        painter.drawLine(QPointF(half, half), end);
    }
}

LineView::LineView(const Toolkit& toolkit, Line& element, QWidget& client) : ElementView(toolkit, element, client) {
    widget_.setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRect LineView::Geometry(const platform::Place& place) const {
    const int line = toolkit_.Scale.LineWidth(element_.BorderWidth);
    const QRect box = toolkit_.Scale.Rect(place);
    return {box.left() - line / 2, box.top() - line / 2, qMax(line, box.width()), qMax(line, box.height())};
}

void LineView::Apply(const LineLook& look) {
    widget_.SetPen(PenOf(look.BorderColor, toolkit_.Scale.LineWidth(look.BorderWidth)));
}

}  // namespace platform::desktop
