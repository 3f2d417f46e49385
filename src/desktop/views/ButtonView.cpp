#include "desktop/views/ButtonView.h"

#include <QPainter>

#include "desktop/values/Colors.h"
#include "desktop/values/Strings.h"
#include "desktop/views/TextLines.h"

namespace platform::desktop {

namespace {
constexpr int kMargin = 6;  ///< pixels at factor 1 that a frame takes from a caption, both sides
}

void ButtonWidget::SetEdge(int width) {
    edge_ = width;
    update();
}

QColor ButtonWidget::Face() const {
    constexpr int kHover = 112;
    constexpr int kPressed = 118;
    const QColor face = palette().color(QPalette::Button);
    if (isDown()) return face.darker(kPressed);
    return underMouse() && isEnabled() ? face.lighter(kHover) : face;
}

/// Bright above and dark below, as a button stands out; the other way round while it is pressed.
void ButtonWidget::PaintEdge(QPainter& painter) const {
    constexpr int kBright = 150;
    constexpr int kDark = 160;
    const QColor face = palette().color(QPalette::Button);
    const QColor above = isDown() ? face.darker(kDark) : face.lighter(kBright);
    const QColor below = isDown() ? face.lighter(kBright) : face.darker(kDark);
    painter.fillRect(0, height() - edge_, width(), edge_, below);
    painter.fillRect(width() - edge_, 0, edge_, height(), below);
    painter.fillRect(0, 0, width() - edge_, edge_, above);
    painter.fillRect(0, 0, edge_, height() - edge_, above);
}

void ButtonWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Face());
    PaintEdge(painter);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
}

ButtonView::ButtonView(const Toolkit& toolkit, CommandButton& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    widget_.setCursor(Qt::PointingHandCursor);
    widget_.setAutoDefault(false);
    widget_.setAttribute(Qt::WA_Hover);
    toolkit.DoubleClicks.Watch(widget_);
    QObject::connect(&widget_, &QPushButton::clicked, &widget_, [this] { toolkit_.Screen.Click(element_); });
}

void ButtonView::Apply(const ButtonLook& look) {
    if (!look.BackColor.IsNone()) {
        const Ink ink = Shown({look.BackColor, Black});
        QPalette palette(ToQt(ink.Ground));
        palette.setColor(QPalette::Active, QPalette::ButtonText, ToQt(ink.Letters));
        widget_.setPalette(palette);
    }
    const QString caption = ToQt(look.Caption);
    const QFont font = toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold);
    widget_.SetEdge(toolkit_.Scale.LineWidth(1));
    widget_.setFont(FittedFont(font, caption, widget_.size() - QSize(toolkit_.Scale.LineWidth(kMargin), 0)));
    widget_.setText(QString(caption).replace('&', "&&"));
    widget_.setDefault(look.Default);
    widget_.setEnabled(look.Enabled);
}

}  // namespace platform::desktop
