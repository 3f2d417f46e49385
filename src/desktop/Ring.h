#pragma once

#include <QWidget>

namespace platform::desktop {

constexpr int kRingBand = 3;  ///< pixels at factor 1

/// A strong ring around an element: a black band around a bright one, so that one of the two stands out from every
/// ground. It lies over the elements of the client area and lets the mouse through.
class Ring : public QWidget {
public:
    Ring(QWidget& client, Qt::GlobalColor bright);

    /// Shows the ring, two bands of `band` pixels, around a widget of the client area; null hides it.
    void Surround(const QWidget* widget, int band);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Qt::GlobalColor bright_;
    int band_ = 1;
};

}  // namespace platform::desktop
