#pragma once

#include <QWidget>

#include "desktop/values/Scale.h"

namespace platform::desktop {

/// A strong ring around an element: a black band around a bright one, so that one of the two stands out from every
/// ground. It lies over the elements of the client area and lets the mouse through.
class Ring : public QWidget {
public:
    Ring(QWidget& client, const Scale& scale, Qt::GlobalColor bright);

    /// Shows the ring around a widget of the client area; null hides it.
    void Surround(const QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The width of each band in pixels.
    [[nodiscard]] int Band() const;

    const Scale& scale_;
    const Qt::GlobalColor bright_;
};

}  // namespace platform::desktop
