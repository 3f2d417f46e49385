#pragma once

#include <QWidget>

namespace platform::desktop {

/// A strong ring around what Space or Enter would press: a black band around a white one, so that one of the two stands
/// out from every ground. It lies over the elements of the client area and lets the mouse through.
class Ring : public QWidget {
public:
    explicit Ring(QWidget& client);

    /// Shows the ring, two bands of `band` pixels, around a widget of the client area; null hides it.
    void Surround(const QWidget* widget, int band);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int band_ = 1;
};

}  // namespace platform::desktop
