#pragma once

#include <QWidget>

namespace platform::desktop {

/// A strong ring around what Space or Enter would press: a black band around a white one, so that one of the two stands
/// out from every ground. It lies over the elements of the client area and lets the mouse through.
class Ring : public QWidget {
public:
    /// `band` is the width of each band in pixels.
    Ring(QWidget& client, int band);

    /// Shows the ring around a widget of the client area; null hides it.
    void Surround(const QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const int band_;
};

}  // namespace platform::desktop
