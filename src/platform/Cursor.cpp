#include "platform/Cursor.h"

#include <algorithm>
#include <cstdlib>

#include "platform/Screen.h"

namespace platform {

namespace {

int Middle(const Place& place) {
    return place.Left + place.Width / 2;
}

bool IsArrow(const Key& key) {
    return key.Code >= KeyLeft && key.Code <= KeyDown;
}

bool IsTab(const Key& key) {
    return key.Code == KeyTab || key.Code == KeyBacktab;
}

bool HasFocus(const Form& form, Kind kind) {
    return form.Focus() != nullptr && form.Focus()->kind == kind;
}

/// By Tab a player goes first through what takes the focus, in its order, then through the rest, in reading order.
int TabPlace(const Control* element) {
    constexpr int kRest = 1000;
    const int tab = TabIndexOf(*element);
    return tab == 0 ? kRest : tab;
}

/// Whether something in the form blinks now: what is hidden may come back at any moment.
bool Blinks(const Form& form) {
    return std::ranges::any_of(form.Timers(), [](const Timer* timer) {
        return timer->ShownBy != nullptr && (timer->IsEnabled() || timer->ShownBy->IsEnabled());
    });
}

}  // namespace

/// A row ends above the first element whose middle lies below the lower edge of one of the row.
Rows RowsOf(std::vector<Control*> elements) {
    std::ranges::stable_sort(elements, {}, [](const Control* element) { return element->Top; });
    Rows rows;
    int bottom = 0;
    for (Control* element : elements) {
        const int end = element->Top + element->Height;
        const bool isNew = rows.empty() || element->Top + element->Height / 2 >= bottom;
        if (isNew) rows.emplace_back();
        rows.back().push_back(element);
        bottom = isNew ? end : std::min(bottom, end);
    }
    for (auto& row : rows) std::ranges::stable_sort(row, {}, [](const Control* element) { return element->Left; });
    return rows;
}

/// What blinks is a stop also while it is out of sight.
bool Cursor::IsStop(const Control& element) const {
    const bool isCovered = element.kind == Kind::CommandButton && static_cast<const CommandButton&>(element).Covered;
    const bool isMeant = TabIndexOf(element) != 0 || (element.Click && !SpokenNameOf(element).empty());
    if (!isMeant || isCovered) return false;
    const Refusal refusal = screen_.Reach(element);
    return refusal == Refusal::None || (refusal == Refusal::Hidden && &element == here_ && Blinks(element.Owner));
}

const Control* Cursor::Here() const {
    if (form_ == nullptr || form_ != screen_.Front()) return nullptr;
    if (here_ != nullptr) return IsStop(*here_) ? here_ : nullptr;
    return HasFocus(*form_, Kind::CommandButton) ? form_->Focus() : nullptr;
}

void Cursor::GiveUp() {
    form_ = nullptr;
    here_ = nullptr;
}

Control* Cursor::Start(const Form& form) const {
    return here_ != nullptr ? here_ : form.Focus();
}

/// A text box and a list have use for the arrows themselves, and some forms too.
bool Cursor::TakesArrows(const Form& form) const {
    if (form.KeyPreview && form.OnKeyDown) return false;
    return here_ != nullptr || !(HasFocus(form, Kind::TextBox) || HasFocus(form, Kind::ListBox));
}

std::vector<Control*> Cursor::Stops(const Form& form) const {
    std::vector<Control*> stops;
    for (Control* element : form.Controls()) {
        if (element == here_ || IsStop(*element)) stops.push_back(element);
    }
    std::vector<Control*> inOrder;
    for (const auto& row : RowsOf(stops)) inOrder.insert(inOrder.end(), row.begin(), row.end());
    return inOrder;
}

bool Cursor::Take(const Form& form, const Key& key) {
    if (form_ != &form) GiveUp();
    const bool isMove = !key.Control && (IsTab(key) || (IsArrow(key) && TakesArrows(form)));
    if (isMove && !Stops(form).empty()) {
        form_ = &form;
        Move(form, key);
        return true;
    }
    if (key.Character > u' ' || key.Code == KeyEscape) GiveUp();
    return false;
}

const Control* Cursor::PressedBy(const Key& key) const {
    return key.Code == KeySpace && !key.Repeated && here_ != nullptr ? Here() : nullptr;
}

void Cursor::Move(const Form& form, const Key& key) {
    std::vector<Control*> stops = Stops(form);
    if (IsTab(key)) {
        std::ranges::stable_sort(stops, {}, TabPlace);
    } else {
        std::erase_if(stops, [this](const Control* stop) { return stop->ByTabAlone && stop != here_; });
    }
    switch (key.Code) {
        case KeyUp: return StepRow(stops, -1);
        case KeyDown: return StepRow(stops, 1);
        case KeyLeft:
        case KeyBacktab: return Step(stops, -1);
        default: return Step(stops, 1);
    }
}

/// The stop `by` steps further, round the ends; from nowhere the first.
void Cursor::Step(const std::vector<Control*>& stops, int by) {
    if (stops.empty()) return;
    const auto count = static_cast<int>(stops.size());
    const auto start = static_cast<int>(std::ranges::find(stops, Start(*form_)) - stops.begin());
    const int next = start == count ? 0 : (start + by + count) % count;
    GoTo(*stops.at(static_cast<std::size_t>(next)));
}

/// To the element of the next row that stands nearest.
void Cursor::StepRow(const std::vector<Control*>& stops, int by) {
    const Control* const start = Start(*form_);
    const Rows rows = RowsOf(stops);
    const auto holds = [start](const auto& row) { return std::ranges::find(row, start) != row.end(); };
    const auto row = static_cast<int>(std::ranges::find_if(rows, holds) - rows.begin());
    const auto count = static_cast<int>(rows.size());
    if (row == count) return Step(stops, by);
    const int next = row + by;
    if (next < 0 || next >= count) return;
    const auto distance = [start](const Control* stop) { return std::abs(Middle(*stop) - Middle(*start)); };
    GoTo(**std::ranges::min_element(rows.at(static_cast<std::size_t>(next)), {}, distance));
}

void Cursor::GoTo(Control& element) {
    const bool takesFocus = TabIndexOf(element) != 0;
    here_ = takesFocus ? nullptr : &element;
    if (takesFocus) element.Owner.SetFocus(element);
}

}  // namespace platform
