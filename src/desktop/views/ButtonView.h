#pragma once

#include <QPushButton>

#include "desktop/views/View.h"

namespace platform::desktop {

/// A button whose face has at rest exactly the colour of the design; a little lighter under the pointer, darker while
/// it is pressed. The style of the desktop would shade it.
class ButtonWidget : public QPushButton {
public:
    using QPushButton::QPushButton;

    /// The width of its edge in pixels.
    void SetEdge(int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QColor Face() const;
    void PaintEdge(QPainter& painter) const;

    int edge_ = 1;
};

/// The view of a button. Keys reach it by the rules of the screen alone, never by Qt's own.
class ButtonView : public ElementView<CommandButton, ButtonWidget> {
public:
    ButtonView(const Toolkit& toolkit, CommandButton& element, QWidget& client);

protected:
    void Apply(const ButtonLook& look) override;
};

}  // namespace platform::desktop
