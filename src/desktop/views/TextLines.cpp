#include "desktop/views/TextLines.h"

#include <QFontMetricsF>
#include <QPainter>

namespace platform::desktop {

namespace {

constexpr double kSlack = 1;  ///< pixels by which a box may be narrower than designed, as its edges are rounded

/// "Ctrl + N" is one word for whoever reads it.
QString Unbroken(QString text) {
    return text.replace(" + ", "\u00A0+\u00A0").replace('\n', QChar::LineSeparator);
}

}  // namespace

TextLines::TextLines(const QString& text, const QFont& font, int width) : layout_(Unbroken(text), font), width_(width) {
    const double height = QFontMetricsF(font).height();
    // Advances in whole pixels would make lines longer at some sizes than at others.
    QTextOption option;
    option.setUseDesignMetrics(true);
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width + kSlack);
        line.setPosition({0, static_cast<double>(qRound(line.lineNumber() * height))});
        size_ = {qMax(size_.width(), line.naturalTextWidth()), (line.lineNumber() + 1) * height};
    }
    layout_.endLayout();
}

void TextLines::Draw(QPainter& painter, QPointF corner, bool centred) const {
    for (int i = 0; i < Count(); ++i) {
        const QTextLine line = layout_.lineAt(i);
        const double left = centred ? qRound((width_ - line.naturalTextWidth()) / 2) : 0;
        line.draw(&painter, corner + QPointF(left, 0));
    }
}

QFont FittedFont(QFont font, const QString& text, QSize box) {
    if (text.size() < 2) return font;
    const int smallest = font.pixelSize() / 2;
    const auto fits = [&font, &text, &box] {
        const TextLines lines(text, font, box.width());
        const bool isNarrow = lines.Size().width() <= box.width() + kSlack;
        return isNarrow && (lines.Count() == 1 || lines.Size().height() <= box.height());
    };
    while (font.pixelSize() > smallest && !fits()) font.setPixelSize(font.pixelSize() - 1);
    return font;
}

}  // namespace platform::desktop
