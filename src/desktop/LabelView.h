#pragma once

#include <QLabel>

#include "desktop/View.h"

namespace platform::desktop {

/// Draws a caption in a box as the labels of the design do. The text is plain and stays within the box.
class LabelWidget : public QLabel {
public:
    using QLabel::QLabel;

    /// `lineWidth` is that of the border in pixels.
    void SetLook(const LabelLook& look, const QFont& font, int lineWidth);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect TextBox() const;
    [[nodiscard]] int TextTop(const QRect& box) const;
    void PaintBorder(QPainter& painter) const;

    QColor ground_;
    QColor ink_;
    bool centred_ = false;
    int border_ = 0;
};

/// The view of a label.
class LabelView : public ElementView<Label, LabelWidget> {
public:
    LabelView(const Toolkit& toolkit, Label& element, QWidget& client);

protected:
    void Apply(const LabelLook& look) override;
};

}  // namespace platform::desktop
