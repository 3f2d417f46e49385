#pragma once

#include <QColor>
#include <QWidget>

#include "desktop/values/Scale.h"

namespace platform::desktop {

/// A ring around an element, in front of the elements of the client area; it lets the mouse through.
class Ring : public QWidget {
public:
    /// Lengths are pixels at factor 1.
    struct Style {
        QColor Outer;
        QColor Inner;  ///< of a second band within the first, so that one of the two stands out; invalid: none
        int Band;      ///< the width of each
        int Gap;       ///< between the ring and the element; negative: the ring lies within
    };
    Ring(QWidget& client, const Scale& scale, Style style);

    /// Shows the ring around a widget of the client area, with its rounding if it is a plate; null hides it.
    void Surround(const QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int Band() const { return scale_.LineWidth(style_.Band); }
    /// From the edge of the element to that of the ring, in pixels.
    [[nodiscard]] int Reach() const;

    const Scale& scale_;
    const Style style_;
    double rounding_ = 0;  // of the element
};

/// The plate that is drawn behind a widget as its larger face, or the widget itself where there is none.
const QWidget& PlateOf(const QWidget& widget);

}  // namespace platform::desktop
