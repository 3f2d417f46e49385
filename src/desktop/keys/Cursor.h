#pragma once

#include <QKeyEvent>

#include "desktop/keys/Board.h"
#include "desktop/keys/Ring.h"

namespace platform::desktop {

/// The way of a player without a mouse through a window: Tab and arrow keys lead from element to element, Space presses
/// the one in the ring, Esc gives the ring up. On what takes the focus the focus goes along; on all else it stays, and
/// the form knows nothing of the ring.
class Cursor {
public:
    Cursor(const Toolkit& toolkit, const Form& form, const Board& board, QWidget& client);

    /// True: the key is the cursor's and goes nowhere else.
    bool Take(const QKeyEvent& press);
    /// Goes with what has changed in the form.
    void Refresh();

    /// What is in the ring without having the focus; null for none.
    [[nodiscard]] const View* Here() const;

private:
    [[nodiscard]] View* Start() const;
    [[nodiscard]] bool TakesArrows() const;
    void Step(int by);
    void StepRow(int by);
    void GoTo(View& view);

    const Form& form_;
    const Board& board_;
    QWidget& client_;
    Ring& ring_;
    View* here_ = nullptr;
};

}  // namespace platform::desktop
