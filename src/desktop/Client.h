#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

namespace platform::desktop {

/// The client area of a window: its ground, and the elements as its children. What reaches beyond it is cut off.
class Client : public QWidget {
public:
    explicit Client(QWidget* window);

    /// The ground: a picture from the top left corner on, or a colour where the picture is null.
    void SetGround(const QPixmap& picture, const QColor& color);

    std::function<void()> OnFirstPaint;  ///< called once, when the window is up

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    QColor color_;
};

}  // namespace platform::desktop
