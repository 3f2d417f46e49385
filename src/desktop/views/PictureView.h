#pragma once

#include <QPixmap>

#include "desktop/views/View.h"

namespace platform::desktop {

/// Shows a picture in the middle of the widget; one that is larger from its top left corner on, cut at the widget.
class PictureWidget : public QWidget {
public:
    using QWidget::QWidget;

    void SetPixmap(const QPixmap& pixmap);
    [[nodiscard]] const QPixmap& Pixmap() const { return pixmap_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap pixmap_;
};

/// The view of a picture box: the picture in its own size, cut at the box.
class PictureBoxView : public ElementView<PictureBox, PictureWidget> {
public:
    PictureBoxView(const Toolkit& toolkit, PictureBox& element, QWidget& client);

    void Forget() override;

protected:
    void Apply(const PictureLook& look) override;
    /// Rounds width and height, not edges, so that the size never changes while the picture moves.
    [[nodiscard]] QRect Geometry(const platform::Place& place) const override;

private:
    std::optional<PictureLook> loaded_;
};

/// The view of an image: the picture scaled to its box. The picture is in memory only while it is shown, because
/// backgrounds are large and only one of six is shown.
class ImageView : public ElementView<Image, PictureWidget> {
public:
    ImageView(const Toolkit& toolkit, Image& element, QWidget& client);

    bool Refresh() override;

protected:
    void Apply(const PictureLook& look) override;

private:
    bool dropped_ = false;
};

}  // namespace platform::desktop
