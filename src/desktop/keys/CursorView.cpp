#include "desktop/keys/CursorView.h"

#include <QAccessible>
#include <utility>

namespace platform::desktop {

CursorView::CursorView(const Toolkit& toolkit, const Form& form, const Board& board, QWidget& client)
    : screen_(toolkit.Screen), form_(form), board_(board), ring_(*new Ring(client, toolkit.Scale, Qt::white)) {}

const View* CursorView::Here() const {
    const Control* const here = screen_.Here();
    const bool isMeant = here != nullptr && &here->Owner == &form_ && TabIndexOf(*here) == 0;
    return isMeant ? board_.Of(here) : nullptr;
}

void CursorView::Refresh() {
    const Control* const here = screen_.Here();
    const View* const ringed = here != nullptr && &here->Owner == &form_ ? board_.Of(here) : nullptr;
    ring_.Surround(ringed == nullptr ? nullptr : &ringed->Widget());
    const View* const stop = Here();
    if (std::exchange(shown_, stop) == stop || stop == nullptr || !QAccessible::isActive()) return;
    QAccessibleEvent event(&stop->Widget(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

}  // namespace platform::desktop
