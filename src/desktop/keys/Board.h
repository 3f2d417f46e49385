#pragma once

#include <vector>

#include "desktop/views/View.h"

namespace platform::desktop {

/// The elements of a window as a player meets them who has no mouse or no sight: in reading order, row by row.
class Board {
public:
    using Row = std::vector<View*>;

    explicit Board(const Screen& screen) : screen_(screen) {}

    /// The view must outlive the board.
    void Add(View& view) { views_.push_back(&view); }

    /// What a screen reader meets: what is seen and has a name, or takes the focus.
    [[nodiscard]] std::vector<View*> Spoken() const;
    /// Where the player can go by keyboard: what he can reach that has a name and answers a click, or takes the focus.
    /// `here` is among them in any case; it may be null.
    [[nodiscard]] std::vector<Row> Stops(const View* here) const;
    [[nodiscard]] bool IsStop(const View& view) const;
    /// The view of an element or of a widget; null if it has none.
    [[nodiscard]] View* Of(const Control* element) const;
    [[nodiscard]] View* Of(const QWidget* widget) const;

private:
    const Screen& screen_;
    std::vector<View*> views_;
};

}  // namespace platform::desktop
