#include "platform/Form.h"

#include <algorithm>

#include "platform/Scheduler.h"

namespace platform {

void Control::Register(Control& control) {
    control.Owner.Add(control);
}

std::string Control::FullName() const {
    return Index < 0 ? Name : Name + "(" + std::to_string(Index) + ")";
}

Text SpokenNameOf(const Control& control) {
    if (control.SpokenName) return control.SpokenName();
    switch (control.kind) {
        case Kind::Label: return static_cast<const Label&>(control).Caption;
        case Kind::CommandButton: return static_cast<const CommandButton&>(control).Caption;
        default: return {};
    }
}

Menu::Menu(Form& form, std::string_view name, MenuLook look) : Element(form, name, {}, std::move(look)) {
    form.Add(*this);
}

Menu::Menu(Menu& parent, std::string_view name, MenuLook look)
    : Element(parent.Owner, name, {}, std::move(look)), Parent(&parent) {
    parent.Owner.Add(*this);
}

Timer::Timer(Form& form, std::string_view name, int interval, bool enabled, const Timer* shownBy)
    : Control(form, Kind::Timer, name, -1, {}), Interval(interval), ShownBy(shownBy), designEnabled_(enabled) {
    form.Add(*this);
}

void Timer::Start() {
    if (enabled_ || scheduler_ == nullptr) return;
    enabled_ = true;
    scheduler_->Add(*this);
}

void Timer::Stop() {
    if (!enabled_) return;
    enabled_ = false;
    scheduler_->Remove(*this);
}

void Timer::ToDesign() {
    Stop();
    if (designEnabled_) Start();
}

void Form::Add(Control& control) {
    controls_.push_back(&control);
    designOrder_.push_back(&control);
}

Control* Form::Find(std::string_view fullName) const {
    const auto named = [fullName](const Control* control) { return control->FullName() == fullName; };
    if (const auto it = std::ranges::find_if(controls_, named); it != controls_.end()) return *it;
    if (const auto it = std::ranges::find_if(menus_, named); it != menus_.end()) return *it;
    if (const auto it = std::ranges::find_if(timers_, named); it != timers_.end()) return *it;
    return nullptr;
}

void Form::ZOrder(Control& control) {
    const bool front = InFrontLayer(control.kind);
    const auto sameLayer = [front](const Control* other) { return InFrontLayer(other->kind) == front; };
    const auto place = std::ranges::find(controls_, &control);
    std::rotate(std::ranges::find_if(controls_, sameLayer), place, place + 1);
}

void Form::ToDesign() {
    static_cast<FormLook&>(*this) = design_;
    controls_ = designOrder_;
    for (Control* control : controls_) control->ToDesign();
    for (Menu* menu : menus_) menu->ToDesign();
    for (Timer* timer : timers_) timer->ToDesign();
    std::stable_partition(controls_.begin(), controls_.end(),
                          [](const Control* control) { return InFrontLayer(control->kind); });
    focus_ = FirstFocus();
}

int TabIndexOf(const Control& control) {
    switch (control.kind) {
        case Kind::CommandButton: return static_cast<const CommandButton&>(control).TabIndex;
        case Kind::TextBox: return static_cast<const TextBox&>(control).TabIndex;
        case Kind::ListBox: return static_cast<const ListBox&>(control).TabIndex;
        default: return 0;
    }
}

Control* Form::FirstFocus() const {
    Control* first = nullptr;
    for (Control* control : controls_) {
        const int tab = TabIndexOf(*control);
        if (tab == 0 || !control->Visible || !control->IsEnabled()) continue;
        if (first == nullptr || tab < TabIndexOf(*first)) first = control;
    }
    return first;
}

}  // namespace platform
