#pragma once

#include <QLabel>

#include "desktop/views/TextLines.h"
#include "desktop/views/View.h"
#include "platform/Contrast.h"

namespace platform::desktop {

/// Draws a caption in a box as the labels of the design do. The text is plain and stays within the box; only a letter
/// that is higher than its box, with a tilde or a tail, reaches beyond it. The box is the contents rectangle.
class LabelWidget : public QLabel {
public:
    using QLabel::QLabel;

    /// `lineWidth` is that of the border in pixels; of the text, `masked` pixels from the left edge are not drawn.
    void SetLook(const LabelLook& look, int lineWidth, int masked);
    /// Other colours than those of the look. `isSnug`: the ground lies behind the text alone.
    void SetInk(const Ink& ink, bool isSnug);
    /// The part of the box that is the text's, and the text in it.
    [[nodiscard]] QRect TextBox() const;
    [[nodiscard]] TextLines Lines() const { return {text(), font(), TextBox().width()}; }
    /// How far the text reaches beyond the box, above and below.
    [[nodiscard]] QMargins Overhang() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool IsHighLetter() const;
    [[nodiscard]] int TextTop(const TextLines& lines) const;
    [[nodiscard]] QRectF PlateOf(const TextLines& lines, QPointF corner) const;
    void PaintBorder(QPainter& painter) const;

    QColor ground_;
    QColor letters_;
    bool centred_ = false;
    bool snug_ = false;
    bool framed_ = false;
    int border_ = 0;
    int masked_ = 0;
};

/// The view of a label.
class LabelView : public ElementView<Label, LabelWidget> {
public:
    LabelView(const Toolkit& toolkit, Label& element, QWidget& client);

    /// The same for labels that look alike.
    [[nodiscard]] const QString& Family() const { return family_; }
    /// The size of letters, in pixels, at which the text fits into its box; that of the design if it can be.
    [[nodiscard]] int NeededSize() const { return needed_; }
    void SetFontSize(int pixels);
    /// Makes the letters stand out from the ground that they have now.
    void RaiseContrast();

protected:
    void Apply(const LabelLook& look) override;

private:
    static QString FamilyOf(const LabelLook& look);
    void SetOverhang();

    int needed_ = 0;
    QString family_;
};

}  // namespace platform::desktop
