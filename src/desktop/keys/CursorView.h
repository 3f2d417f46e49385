#pragma once

#include "desktop/keys/Board.h"
#include "desktop/keys/Ring.h"

namespace platform::desktop {

/// Shows in a window where a player without a mouse is: to the eye by a ring, to a screen reader as the focus.
class CursorView {
public:
    CursorView(const Toolkit& toolkit, const Form& form, const Board& board, QWidget& client);

    /// Goes with what has changed in the form.
    void Refresh();

    /// What is in the ring without having the focus; null for none.
    [[nodiscard]] const View* Here() const;

private:
    const Screen& screen_;
    const Form& form_;
    const Board& board_;
    Ring& ring_;
    const View* shown_ = nullptr;
};

}  // namespace platform::desktop
