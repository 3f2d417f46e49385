#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <future>

namespace platform::desktop {

/// The client area of a window: its ground, and the elements as its children. What reaches beyond it is cut off.
class Client : public QWidget {
public:
    explicit Client(QWidget* window);

    /// The ground: a picture from the top left corner on, waited for when it is first painted, or a colour where the
    /// picture is null or not `valid`.
    void SetGround(std::future<QImage> picture, const QColor& color);

    std::function<void()> OnFirstPaint;  ///< called once, when the window is up

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::future<QImage> awaited_;
    QPixmap picture_;
    QColor color_;
};

}  // namespace platform::desktop
