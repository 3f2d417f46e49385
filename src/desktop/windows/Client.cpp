#include "desktop/windows/Client.h"

#include <QPaintEvent>
#include <QPainter>
#include <utility>

namespace platform::desktop {

Client::Client(QWidget* window) : QWidget(window) {
    setObjectName("client");
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Client::SetGround(std::future<QImage> picture, const QColor& color) {
    awaited_ = std::move(picture);
    picture_ = {};
    color_ = color;
    update();
}

void Client::paintEvent(QPaintEvent* event) {
    if (awaited_.valid()) picture_ = QPixmap::fromImage(awaited_.get());
    QPainter painter(this);
    if (picture_.isNull() || picture_.hasAlpha()) painter.fillRect(event->rect(), color_);
    if (!picture_.isNull()) painter.drawPixmap(0, 0, picture_);
    if (OnFirstPaint) std::exchange(OnFirstPaint, nullptr)();
}

}  // namespace platform::desktop
