#pragma once

#include <vector>

#include "desktop/views/View.h"

namespace platform::desktop {

/// The elements of a window as a screen reader meets them.
class Board {
public:
    /// The view must outlive the board.
    void Add(View& view) { views_.push_back(&view); }

    /// In reading order, what is seen and has a name, or takes the focus.
    [[nodiscard]] std::vector<View*> Spoken() const;
    /// The view of an element or of a widget; null if it has none.
    [[nodiscard]] View* Of(const Control* element) const;
    [[nodiscard]] View* Of(const QWidget* widget) const;

private:
    std::vector<View*> views_;
};

}  // namespace platform::desktop
