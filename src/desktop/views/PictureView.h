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
    /// Its size is rounded by itself, as that of its picture is, so that the picture fits to the pixel wherever it
    /// moves.
    [[nodiscard]] QRect Geometry(const platform::Place& place) const override;

private:
    std::optional<PictureLook> loaded_;
};

/// The view of an image: the picture scaled to its box. It holds the picture only while it is seen, for backgrounds are
/// large and one of them is shown at a time.
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
