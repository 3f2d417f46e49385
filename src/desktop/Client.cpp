#include "desktop/Client.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace platform::desktop {

Client::Client(QWidget* window) : QWidget(window) {
    setObjectName("client");
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Client::SetGround(const QPixmap& picture, const QColor& color) {
    picture_ = picture;
    color_ = color;
    update();
}

void Client::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (picture_.isNull() || picture_.hasAlpha()) painter.fillRect(event->rect(), color_);
    if (!picture_.isNull()) painter.drawPixmap(0, 0, picture_);
    if (OnFirstPaint) std::exchange(OnFirstPaint, nullptr)();
}

// A press that nobody takes would go on to the window behind.
void Client::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void Client::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && inside && OnClick) OnClick();
}

}  // namespace platform::desktop
