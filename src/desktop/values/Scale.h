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

    static constexpr double kLeast = 0.6;    ///< at which texts can still be read
    static constexpr double kLargest = 4;    ///< beyond which pictures would be soft
    static constexpr int kMenuHeight = 345;  ///< of a menu bar, in twips

    /// The largest factor, in hundredths, at which the largest window of the program, its menu bar and its frame fit
    /// into `available`.
    static Scale For(QSize available);
    /// The largest factor, in hundredths, at which `design`, in twips, fits into `pixels`.
    static Scale Filling(QSize pixels, QSize design);

    [[nodiscard]] double Factor() const { return factor_; }
    [[nodiscard]] int Pixels(int twips) const { return qRound(twips * factor_ / kTwipsPerPixel); }
    [[nodiscard]] QSize Size(QSize twips) const { return {Pixels(twips.width()), Pixels(twips.height())}; }
    /// Edges are rounded, not sizes: elements that touch in the design touch on the screen.
    [[nodiscard]] QRect Rect(const Place& place) const;
    /// The width of a line of `width` pixels at factor 1; never thinner than a pixel.
    [[nodiscard]] int LineWidth(int width) const { return qMax(1, qRound(width * factor_)); }
    /// A font of the design. Fonts have whole pixels; the size is rounded down and the letters are widened by what that
    /// takes, so that lines are as long, and break where they do, at every factor.
    [[nodiscard]] QFont Font(FontName name, double points, bool bold) const;

private:
    static constexpr double kTwipsPerPixel = 15;
    double factor_;
};

}  // namespace platform::desktop
