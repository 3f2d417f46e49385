#include "desktop/keys/CursorView.h"

#include <QAccessible>
#include <utility>

namespace platform::desktop {

namespace {

/// As the page shows the focus.
constexpr Ring::Style kRing = {
    .Outer = QColor(0x00, 0x50, 0xFF), .Inner = QColor(0xFF, 0xFF, 0xFF), .Band = 2, .Gap = 0};

}  // namespace

CursorView::CursorView(const Toolkit& toolkit, const Form& form, const Board& board, QWidget& client)
    : screen_(toolkit.Screen), form_(form), board_(board), ring_(*new Ring(client, toolkit.Scale, kRing)) {}

const View* CursorView::Here() const {
    const Control* const here = screen_.Here();
    const bool isMeant = here != nullptr && &here->Owner == &form_ && TabIndexOf(*here) == 0;
    return isMeant ? board_.Of(here) : nullptr;
}

void CursorView::Refresh() {
    const Control* const here = screen_.Here();
    const View* const ringed = here != nullptr && &here->Owner == &form_ ? board_.Of(here) : nullptr;
    const QWidget* const widget = ringed == nullptr ? nullptr : &ringed->Widget();
    const bool isButton = ringed != nullptr && here->kind == Kind::CommandButton;
    ring_.Surround(isButton ? &PlateOf(*widget) : widget);
    const View* const stop = Here();
    if (std::exchange(shown_, stop) == stop || stop == nullptr || !QAccessible::isActive()) return;
    QAccessibleEvent event(&stop->Widget(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

}  // namespace platform::desktop
