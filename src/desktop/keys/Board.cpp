#include "desktop/keys/Board.h"

#include <algorithm>

#include "platform/Cursor.h"

namespace platform::desktop {

namespace {

bool IsSpoken(const Control& element) {
    return element.Visible && (TabIndexOf(element) != 0 || !SpokenNameOf(element).empty());
}

}  // namespace

std::vector<View*> Board::Spoken() const {
    std::vector<Control*> spoken;
    for (const View* view : views_) {
        if (IsSpoken(view->Element())) spoken.push_back(&view->Element());
    }
    std::vector<View*> order;
    for (const auto& row : RowsOf(spoken)) {
        for (const Control* element : row) order.push_back(Of(element));
    }
    return order;
}

View* Board::Of(const Control* element) const {
    const auto view = std::ranges::find_if(views_, [element](const View* v) { return &v->Element() == element; });
    return view == views_.end() ? nullptr : *view;
}

View* Board::Of(const QWidget* widget) const {
    const auto view = std::ranges::find_if(views_, [widget](const View* v) { return &v->Widget() == widget; });
    return view == views_.end() ? nullptr : *view;
}

}  // namespace platform::desktop
