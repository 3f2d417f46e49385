#pragma once

#include <QPen>

#include "desktop/views/View.h"

namespace platform::desktop {

/// Draws a figure that fills the widget, border included.
class ShapeWidget : public QWidget {
public:
    using QWidget::QWidget;

    /// The width of the border and the largest rounding of a corner, in pixels.
    void SetLook(const ShapeLook& look, int lineWidth, int rounding);
    /// The radius of its corners in pixels; 0 for one without.
    [[nodiscard]] double Rounding() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Figure figure_ = Figure::Rectangle;
    QBrush fill_;
    QPen border_;
    int rounding_ = 0;
};

/// The view of a shape. The mouse goes through one that answers no click, to what lies behind.
class ShapeView : public ElementView<Shape, ShapeWidget> {
public:
    ShapeView(const Toolkit& toolkit, Shape& element, QWidget& client);

protected:
    void Apply(const ShapeLook& look) override;
};

/// Draws a line from its top left to its bottom right corner.
class LineWidget : public QWidget {
public:
    using QWidget::QWidget;

    void SetPen(const QPen& pen);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPen pen_;
};

/// The view of a line. The mouse goes through it to what lies behind.
class LineView : public ElementView<Line, LineWidget> {
public:
    LineView(const Toolkit& toolkit, Line& element, QWidget& client);

protected:
    void Apply(const LineLook& look) override;
    [[nodiscard]] QRect Geometry(const platform::Place& place) const override;
};

}  // namespace platform::desktop
