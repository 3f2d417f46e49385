#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/values/Scale.h"

namespace platform::desktop {

/// How large the windows are. All of them have one factor, and the main window sets it: the player makes it larger or
/// smaller by its edge, maximises it, or has it fill the screen. What he chose is there again at the next start.
class Sizing : public QObject {
public:
    /// `scale` is the factor of all windows, to begin with the largest that the screen has room for.
    explicit Sizing(Scale& scale);

    /// Takes up what was stored in the current folder, if anything. To be called before the first window is made.
    void Recall();
    /// From here on `main`, which is not shown yet, sets the factor. `design` is what its content and its menu bar need
    /// in twips.
    void Follow(QWidget& main, QSize design);
    /// Shows the main window as the player had it.
    void Show();
    void SwitchFullScreen();

    std::function<void()> OnFactor;  ///< the factor has changed

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void Adapt();
    void Settle();
    void Remember() const;

    Scale& scale_;
    QPointer<QWidget> main_;
    QSize design_;
    Qt::WindowStates state_;
    QTimer settled_;
};

}  // namespace platform::desktop
