#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace platform::desktop {

/// A text in lines that are no longer than a width, broken at blanks and line breaks alone; signs between two words do
/// not leave them. Lines follow each other as closely as the font has them, without the rounding of each to whole
/// pixels, so that as many of them fit into a box at every factor.
class TextLines {
public:
    /// Lengths are pixels.
    TextLines(const QString& text, const QFont& font, int width);

    /// The longest line, which can be longer than the width where a word is, and all lines.
    [[nodiscard]] QSizeF Size() const { return size_; }
    [[nodiscard]] int Count() const { return layout_.lineCount(); }
    /// Draws the lines from a point on, in the middle of the width if they are centred.
    void Draw(QPainter& painter, QPointF corner, bool centred) const;

private:
    QTextLayout layout_;
    const int width_;
    QSizeF size_;
};

/// The font, as much smaller as it takes for a text to fit into a box, down to half its size. A single line may be
/// higher than the box, and a single letter wider: then only empty margins are outside.
QFont FittedFont(QFont font, const QString& text, QSize box);

}  // namespace platform::desktop
