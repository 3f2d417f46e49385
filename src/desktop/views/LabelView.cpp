#include "desktop/views/LabelView.h"

#include <QPainter>

#include "desktop/values/Colors.h"
#include "desktop/values/Strings.h"

namespace platform::desktop {

void LabelWidget::SetLook(const LabelLook& look, int lineWidth, int masked) {
    SetInk({look.BackColor, look.ForeColor}, look.Snug);
    centred_ = look.Align == Alignment::Centre;
    border_ = look.BorderStyle == 0 ? 0 : lineWidth;
    masked_ = masked;
    framed_ = centred_ && (ground_.isValid() || border_ > 0);
    setTextFormat(Qt::PlainText);
    setText(ToQt(look.Caption));
    update();
}

void LabelWidget::SetInk(const Ink& ink, bool isSnug) {
    const QColor ground = ToQt(ink.Ground);
    const QColor letters = ToQt(ink.Letters);
    if (ground == ground_ && letters == letters_ && isSnug == snug_) return;
    ground_ = ground;
    letters_ = letters;
    snug_ = isSnug;
    update();
}

QRect LabelWidget::TextBox() const {
    return contentsRect().adjusted(border_, border_, -border_, -border_);
}

bool LabelWidget::IsHighLetter() const {
    return text().size() == 1 && fontMetrics().height() > TextBox().height();
}

/// The top of the first line. In a box with a background a single line is centred by its capitals; every other text
/// begins at the top of its box. A line that is higher than its box is moved until no stroke of it is cut off, but a
/// letter stays on the line of its neighbours.
int LabelWidget::TextTop(const TextLines& lines) const {
    const QRect box = TextBox();
    if (lines.Count() > 1) {
        return framed_ ? box.top() + qMax(0, (box.height() - qRound(lines.Size().height())) / 2) : box.top();
    }
    const QFontMetrics metrics = fontMetrics();
    int top = box.top();
    if (framed_) top += (box.height() + metrics.capHeight()) / 2 - metrics.ascent();
    if (IsHighLetter()) return top;
    if (metrics.height() <= box.height()) return qMax(top, box.top());
    const QRect ink = metrics.tightBoundingRect(text()).translated(0, top + metrics.ascent());
    if (ink.bottom() > box.bottom()) return top - (ink.bottom() - box.bottom());
    return ink.top() < box.top() ? top + box.top() - ink.top() : top;
}

QMargins LabelWidget::Overhang() const {
    if (!IsHighLetter()) return {};
    const QFontMetrics metrics = fontMetrics();
    const QRect ink = metrics.tightBoundingRect(text()).translated(0, TextTop(Lines()) + metrics.ascent());
    const QRect box = contentsRect();
    return {0, qMax(0, box.top() - ink.top() + 1), 0, qMax(0, ink.bottom() - box.bottom() + 1)};
}

void LabelWidget::PaintBorder(QPainter& painter) const {
    // Sunken into its own ground; a frame around something else is plain.
    const QColor dark = ground_.isValid() ? ground_.darker(250) : QColor(Qt::black);
    const QColor bright = ground_.isValid() ? ground_.lighter(160) : dark;
    const QRect box = contentsRect();
    const int line = border_;
    painter.fillRect(box.left(), box.bottom() + 1 - line, box.width(), line, bright);
    painter.fillRect(box.right() + 1 - line, box.top(), line, box.height(), bright);
    painter.fillRect(box.left(), box.top(), box.width(), line, dark);
    painter.fillRect(box.left(), box.top(), line, box.height(), dark);
}

/// The rectangle of the ground behind the text; empty where there is no text.
QRectF LabelWidget::PlateOf(const TextLines& lines, QPointF corner) const {
    if (text().isEmpty()) return {};
    const double left = centred_ ? (TextBox().width() - lines.Size().width()) / 2 : 0;
    return {corner + QPointF(left, 0), lines.Size()};
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const TextLines lines = Lines();
    const QPoint corner(TextBox().left(), TextTop(lines));
    if (ground_.isValid()) painter.fillRect(snug_ ? PlateOf(lines, corner) : QRectF(contentsRect()), ground_);
    if (border_ > 0) PaintBorder(painter);
    if (masked_ > 0) painter.setClipRect(QRect(contentsRect()).adjusted(masked_, 0, 0, 0));
    painter.setPen(letters_);
    lines.Draw(painter, corner, centred_);
}

LabelView::LabelView(const Toolkit& toolkit, Label& element, QWidget& client) : ElementView(toolkit, element, client) {
    TakeClicks();
}

QString LabelView::FamilyOf(const LabelLook& look) {
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(static_cast<int>(look.Font))
        .arg(look.FontSize)
        .arg(look.BackColor.Rgb)
        .arg(look.ForeColor.Rgb)
        .arg(static_cast<int>(look.Align))
        .arg(look.BorderStyle);
}

void LabelView::Apply(const LabelLook& look) {
    const QFont font = toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold);
    widget_.setContentsMargins({});
    widget_.setGeometry(Geometry(element_));
    widget_.SetLook(look, toolkit_.Scale.LineWidth(1), toolkit_.Scale.Pixels(look.Masked));
    widget_.setFont(font);
    needed_ = FittedFont(font, widget_.text(), widget_.TextBox().size()).pixelSize();
    family_ = FamilyOf(look);
    SetOverhang();
    SetFontSize(needed_);
    SetToolTip(widget_, look.ToolTipText);
}

void LabelView::SetFontSize(int pixels) {
    QFont font = widget_.font();
    if (font.pixelSize() == pixels) return;
    font.setPixelSize(pixels);
    widget_.setFont(font);
    SetOverhang();
}

void LabelView::RaiseContrast() {
    const ReadableLabel readable = Readable(element_);
    widget_.SetInk(readable.Ink, readable.Snug);
}

void LabelView::SetOverhang() {
    const QMargins overhang = widget_.Overhang();
    widget_.setContentsMargins(overhang);
    widget_.setGeometry(Geometry(element_).marginsAdded(overhang));
}

}  // namespace platform::desktop
