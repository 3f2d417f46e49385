#include "desktop/keys/Board.h"

#include <algorithm>

namespace platform::desktop {

namespace {

bool IsSpoken(const View& view) {
    return view.Element().Visible && (TabIndexOf(view.Element()) != 0 || !SpokenNameOf(view.Element()).empty());
}

/// A row ends above the first element whose middle lies below the lower edge of one of the row.
std::vector<Board::Row> RowsOf(std::vector<View*> views) {
    std::ranges::stable_sort(views, {}, [](const View* view) { return view->Element().Top; });
    std::vector<Board::Row> rows;
    int bottom = 0;
    for (View* view : views) {
        const Place& place = view->Element();
        const int end = place.Top + place.Height;
        const bool isNew = rows.empty() || place.Top + place.Height / 2 >= bottom;
        if (isNew) rows.emplace_back();
        rows.back().push_back(view);
        bottom = isNew ? end : std::min(bottom, end);
    }
    for (Board::Row& row : rows) std::ranges::stable_sort(row, {}, [](const View* v) { return v->Element().Left; });
    return rows;
}

}  // namespace

std::vector<View*> Board::Spoken() const {
    std::vector<View*> spoken;
    std::ranges::copy_if(views_, std::back_inserter(spoken), [](const View* view) { return IsSpoken(*view); });
    std::vector<View*> order;
    for (const Row& row : RowsOf(spoken)) order.insert(order.end(), row.begin(), row.end());
    return order;
}

bool Board::IsStop(const View& view) const {
    const Control& element = view.Element();
    const bool isMeant = TabIndexOf(element) != 0 || (element.Click && !SpokenNameOf(element).empty());
    return isMeant && screen_.Reach(element) == Refusal::None;
}

std::vector<Board::Row> Board::Stops(const View* here) const {
    std::vector<View*> stops;
    std::ranges::copy_if(views_, std::back_inserter(stops),
                         [this, here](const View* view) { return view == here || IsStop(*view); });
    return RowsOf(stops);
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
