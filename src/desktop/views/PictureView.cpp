#include "desktop/views/PictureView.h"

#include <QPainter>

#include "desktop/values/Strings.h"

namespace platform::desktop {

void PictureWidget::SetPixmap(const QPixmap& pixmap) {
    pixmap_ = pixmap;
    update();
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
    if (pixmap_.isNull()) return;
    // A part of the picture, not a clipped whole: a printer has no edges of widgets to clip at.
    QPainter painter(this);
    const QSize seen = pixmap_.deviceIndependentSize().toSize().boundedTo(size());
    const double ratio = pixmap_.devicePixelRatio();
    const QPoint corner((width() - seen.width()) / 2, (height() - seen.height()) / 2);
    painter.drawPixmap(QRectF(corner, seen), pixmap_, QRectF(QPointF(), QSizeF(seen) * ratio));
}

PictureBoxView::PictureBoxView(const Toolkit& toolkit, PictureBox& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeClicks();
}

void PictureBoxView::Forget() {
    ElementView::Forget();
    loaded_.reset();
}

QRect PictureBoxView::Geometry(const platform::Place& place) const {
    return toolkit_.Scale.Rect(OnPixels(place));
}

void PictureBoxView::Apply(const PictureLook& look) {
    SetToolTip(widget_, look.ToolTipText);
    const bool same = loaded_ && loaded_->Picture == look.Picture && loaded_->Stored == look.Stored;
    if (same) return;
    loaded_ = look;
    const QPixmap picture = toolkit_.Pictures.OwnSize(look);
    if (!picture.isNull()) widget_.SetPixmap(picture);
}

ImageView::ImageView(const Toolkit& toolkit, Image& element, QWidget& client) : ElementView(toolkit, element, client) {
    TakeClicks();
}

bool ImageView::Refresh() {
    if (!element_.Visible && !widget_.Pixmap().isNull()) {
        widget_.SetPixmap({});
        dropped_ = true;
    } else if (element_.Visible && dropped_) {
        dropped_ = false;
        Apply(element_);
    }
    return ElementView::Refresh();
}

void ImageView::Apply(const PictureLook& look) {
    SetToolTip(widget_, look.ToolTipText);
    const QPixmap picture = toolkit_.Pictures.Fitted(look, widget_.size());
    if (!picture.isNull()) widget_.SetPixmap(picture);
}

}  // namespace platform::desktop
