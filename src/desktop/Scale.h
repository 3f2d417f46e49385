#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

#include "platform/Controls.h"

namespace platform::desktop {

/// The one factor between the lengths of the design and the pixels of the screen; 1 makes a pixel of 15 twips.
class Scale {
public:
    explicit Scale(double factor) : factor_(factor) {}

    /// The largest step at which the largest window of the program, its menu bar and its frame fit into `available`.
    /// On a screen too small for factor 1 it is whatever fits.
    static Scale For(QSize available);

    [[nodiscard]] double Factor() const { return factor_; }
    [[nodiscard]] int Pixels(int twips) const { return qRound(twips * factor_ / kTwipsPerPixel); }
    /// Edges are rounded, not sizes: elements that touch in the design touch on the screen.
    [[nodiscard]] QRect Rect(const Place& place) const;
    /// The width of a line of `width` pixels at factor 1; never thinner than a pixel.
    [[nodiscard]] int LineWidth(int width) const { return qMax(1, qRound(width * factor_)); }
    /// A font of the design. Its size is whole pixels, rounded down, so that what fits at factor 1 fits always.
    [[nodiscard]] QFont Font(FontName name, double points, bool bold) const;

private:
    static constexpr double kTwipsPerPixel = 15;
    double factor_;
};

/// The font, as much smaller as it takes for a text to fit into a box, down to half its size. A single line may be
/// higher than the box, and a single letter wider: then only empty margins are outside.
QFont FittedFont(QFont font, const QString& text, QSize box);

}  // namespace platform::desktop
