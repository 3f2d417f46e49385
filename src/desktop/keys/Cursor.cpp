#include "desktop/keys/Cursor.h"

#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>
#include <cstdlib>

namespace platform::desktop {

namespace {

int Middle(const View& view) {
    return view.Element().Left + view.Element().Width / 2;
}

/// The stop `by` steps further, round the ends; from nowhere the first or the last. Null if there is none but `from`.
View* Further(const std::vector<View*>& stops, const View* from, int by) {
    if (stops.empty()) return nullptr;
    const auto count = static_cast<int>(stops.size());
    const auto start = static_cast<int>(std::ranges::find(stops, from) - stops.begin());
    const int first = by > 0 ? 0 : count - 1;
    const int next = start == count ? first : (start + by + count) % count;
    View* const stop = stops.at(static_cast<std::size_t>(next));
    return stop == from ? nullptr : stop;
}

}  // namespace

Cursor::Cursor(const Toolkit& toolkit, const Form& form, const Board& board, QWidget& client)
    : form_(form), board_(board), client_(client), ring_(*new Ring(client, toolkit.Scale, Qt::white)) {}

const View* Cursor::Here() const {
    return here_ != nullptr && board_.IsStop(*here_) ? here_ : nullptr;
}

View* Cursor::Start() const {
    return here_ != nullptr ? here_ : board_.Of(form_.Focus());
}

/// A text box and a list have use for the arrows themselves, and some forms too.
bool Cursor::TakesArrows() const {
    if (form_.KeyPreview && form_.OnKeyDown) return false;
    const QWidget* const focus = client_.window()->focusWidget();
    const bool isUsed =
        dynamic_cast<const QLineEdit*>(focus) != nullptr || dynamic_cast<const QListWidget*>(focus) != nullptr;
    return Here() != nullptr || !isUsed;
}

bool Cursor::Take(const QKeyEvent& press) {
    constexpr Qt::KeyboardModifiers kHeld = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (press.modifiers() & kHeld) return false;
    const bool isArrow = press.key() >= Qt::Key_Left && press.key() <= Qt::Key_Down;
    if (isArrow && !TakesArrows()) return false;
    const bool isMove = isArrow || press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab;
    if (isMove && board_.Stops(nullptr).empty()) return false;
    switch (press.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Right: Step(1); return true;
        case Qt::Key_Backtab:
        case Qt::Key_Left: Step(-1); return true;
        case Qt::Key_Up: StepRow(-1); return true;
        case Qt::Key_Down: StepRow(1); return true;
        default: break;
    }
    if (Here() == nullptr || press.isAutoRepeat()) return false;
    if (press.key() == Qt::Key_Escape) {
        here_ = nullptr;
        Refresh();
        return true;
    }
    if (press.key() != Qt::Key_Space) return false;
    here_->Press();
    return true;
}

void Cursor::Step(int by) {
    std::vector<View*> stops;
    View* const start = Start();
    for (const Board::Row& row : board_.Stops(start)) stops.insert(stops.end(), row.begin(), row.end());
    if (View* const stop = Further(stops, start, by)) GoTo(*stop);
}

/// To the element of the next row that stands nearest.
void Cursor::StepRow(int by) {
    const View* const start = Start();
    if (start == nullptr) return Step(by);
    const std::vector<Board::Row> rows = board_.Stops(start);
    const auto holds = [start](const Board::Row& row) { return std::ranges::find(row, start) != row.end(); };
    const auto row = static_cast<int>(std::ranges::find_if(rows, holds) - rows.begin());
    const int next = row + by;
    if (next < 0 || next >= static_cast<int>(rows.size())) return;
    const auto distance = [start](const View* view) { return std::abs(Middle(*view) - Middle(*start)); };
    GoTo(**std::ranges::min_element(rows.at(static_cast<std::size_t>(next)), {}, distance));
}

void Cursor::GoTo(View& view) {
    const bool takesFocus = TabIndexOf(view.Element()) != 0;
    here_ = takesFocus ? nullptr : &view;
    if (takesFocus) view.Widget().setFocus(Qt::TabFocusReason);
    Refresh();
    if (takesFocus || !QAccessible::isActive()) return;
    QAccessibleEvent event(&view.Widget(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void Cursor::Refresh() {
    const View* shown = Here();
    const View* const focus = board_.Of(client_.window()->focusWidget());
    if (shown == nullptr && focus != nullptr && focus->Element().kind == Kind::CommandButton) shown = focus;
    ring_.Surround(shown == nullptr ? nullptr : &shown->Widget());
}

}  // namespace platform::desktop
