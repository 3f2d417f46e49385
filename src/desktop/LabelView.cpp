#include "desktop/LabelView.h"

#include <QPainter>
#include <array>

#include "desktop/Colors.h"
#include "desktop/Strings.h"

namespace platform::desktop {

namespace {

constexpr int kWrap = Qt::TextWordWrap | Qt::AlignTop;

}  // namespace

void LabelWidget::SetLook(const LabelLook& look, const QFont& font, int lineWidth) {
    ground_ = ToQt(look.BackColor);
    ink_ = ToQt(look.ForeColor);
    centred_ = look.Align == Alignment::Centre;
    border_ = look.BorderStyle == 0 ? 0 : lineWidth;
    setTextFormat(Qt::PlainText);
    setText(ToQt(look.Caption));
    setFont(FittedFont(font, text(), TextBox().size()));
    update();
}

QRect LabelWidget::TextBox() const {
    return rect().adjusted(border_, border_, -border_, -border_);
}

/// Where the first line begins. A single line on a ground of its own stands with its capitals in the middle; every
/// other text begins at the top. A line that is higher than its box is moved until no stroke of it is cut off.
int LabelWidget::TextTop(const QRect& box) const {
    const QFontMetrics metrics = fontMetrics();
    const int height = metrics.boundingRect(box, kWrap, text()).height();
    const bool single = height < 2 * metrics.height();
    const bool framed = centred_ && (ground_.isValid() || border_ > 0);
    if (!single) return framed ? box.top() + qMax(0, (box.height() - height) / 2) : box.top();

    int top = box.top();
    if (framed) top += (box.height() + metrics.capHeight()) / 2 - metrics.ascent();
    if (metrics.height() <= box.height()) return qMax(top, box.top());
    const QRect ink = metrics.tightBoundingRect(text()).translated(0, top + metrics.ascent());
    if (ink.bottom() > box.bottom()) return top - (ink.bottom() - box.bottom());
    return ink.top() < box.top() ? top + box.top() - ink.top() : top;
}

void LabelWidget::PaintBorder(QPainter& painter) const {
    // Sunken into its own ground; a frame around something else is plain.
    const QColor dark = ground_.isValid() ? ground_.darker(250) : QColor(Qt::black);
    const QColor bright = ground_.isValid() ? ground_.lighter(160) : dark;
    const int w = width();
    const int h = height();
    const int line = border_;
    painter.fillRect(0, h - line, w, line, bright);
    painter.fillRect(w - line, 0, line, h, bright);
    painter.fillRect(0, 0, w, line, dark);
    painter.fillRect(0, 0, line, h, dark);
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (ground_.isValid()) painter.fillRect(rect(), ground_);
    if (border_ > 0) PaintBorder(painter);
    if (text().isEmpty()) return;
    QRect box = TextBox();
    box.setTop(TextTop(box));
    painter.setPen(ink_);
    painter.drawText(box, kWrap | Qt::TextDontClip | (centred_ ? Qt::AlignHCenter : Qt::AlignLeft), text());
}

LabelView::LabelView(const Toolkit& toolkit, Label& element, QWidget& client) : ElementView(toolkit, element, client) {
    TakeClicks();
}

void LabelView::Apply(const LabelLook& look) {
    widget_.SetLook(look, toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold), toolkit_.Scale.LineWidth(1));
    SetToolTip(widget_, look.ToolTipText);
}

}  // namespace platform::desktop
