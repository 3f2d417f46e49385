#include "platform/Screen.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

bool Screen::Contains(const std::vector<Form*>& forms, const Form& form) const {
    return std::ranges::find(forms, &form) != forms.end();
}

void Screen::Load(Form& form) {
    if (Contains(loaded_, form)) return;
    loaded_.push_back(&form);
    for (Timer* timer : form.Timers()) timer->Attach(scheduler_);
    form.ToDesign();
    for (Control* control : form.Controls()) {
        if (control->kind == Kind::PictureBox) fitted_.push_back({&form, static_cast<PictureBox*>(control), {}});
    }
    FitPictures();
    if (form.OnLoad) form.OnLoad();
}

void Screen::Open(Form& form, bool modal) {
    Load(form);
    if (!Contains(loaded_, form) || Contains(shown_, form)) return;
    cursor_.GiveUp();
    shown_.push_back(&form);
    if (modal) modal_.push_back(&form);
    FitPictures();
    display_.Opened(form, modal);
}

void Screen::FitPictures() {
    for (auto& [form, box, fitted] : fitted_) FitToPicture(*box, fitted);
}

void Screen::FitToPicture(PictureBox& box, Text& fitted) const {
    constexpr int kTwipsPerPixel = 15;
    constexpr int kLargest = 32767 / kTwipsPerPixel;
    const auto sensible = [](int pixels) { return pixels > 0 && pixels <= kLargest; };
    if (fitted == box.Picture) return;
    fitted = box.Picture;
    const auto size = fitted.empty() ? std::nullopt : display_.SizeOf(fitted);
    if (!size || !sensible(size->Width) || !sensible(size->Height)) return;
    box.Width = size->Width * kTwipsPerPixel;
    box.Height = size->Height * kTwipsPerPixel;
}

void Screen::Show(Form& form) {
    Open(form, false);
}

void Screen::ShowModal(Form& form) {
    Open(form, true);
    Settle();
    display_.WaitUntil([this, &form] { return !Contains(shown_, form); });
}

void Screen::Hide(Form& form) {
    if (!Contains(shown_, form)) return;
    std::erase(shown_, &form);
    std::erase(modal_, &form);
    display_.Closed(form);
}

void Screen::Unload(Form& form) {
    if (!Contains(loaded_, form) || Contains(closing_, form)) return;
    closing_.push_back(&form);
    if (form.OnQueryUnload) form.OnQueryUnload();
    for (Timer* timer : form.Timers()) timer->Stop();
    Hide(form);
    std::erase(loaded_, &form);
    std::erase_if(fitted_, [&form](const FittedBox& box) { return box.form == &form; });
    std::erase(closing_, &form);
}

Refusal Screen::Reach(const Form& form) const {
    if (!Contains(shown_, form) || Contains(closing_, form)) return Refusal::Closed;
    const auto place = std::ranges::find(shown_, &form);
    const bool blocked = std::any_of(place + 1, shown_.end(), [this](Form* above) { return Contains(modal_, *above); });
    return blocked ? Refusal::Blocked : Refusal::None;
}

Refusal Screen::Reach(const Control& control) const {
    if (const Refusal refusal = Reach(control.Owner); refusal != Refusal::None) return refusal;
    if (!control.Visible) return Refusal::Hidden;
    return control.IsEnabled() ? Refusal::None : Refusal::Disabled;
}

void Screen::Run(const std::function<void()>& handler) {
    if (handler) handler();
    Settle();
}

void Screen::Settle() {
    FitPictures();
    if (OnSettled) OnSettled();
    display_.Refresh();
}

Refusal Screen::Trigger(Control& control) {
    const Refusal refusal = Reach(control);
    if (refusal == Refusal::None) Run(control.Click);
    return refusal;
}

Refusal Screen::Click(Control& control) {
    cursor_.GiveUp();
    Focus(control);
    return Trigger(control);
}

Refusal Screen::Click(Form& form) {
    cursor_.GiveUp();
    const Refusal refusal = Reach(form);
    if (refusal == Refusal::None) Run(form.OnClick);
    return refusal;
}

Refusal Screen::Close(Form& form) {
    const Refusal refusal = Reach(form);
    if (refusal == Refusal::None) Run([this, &form] { Unload(form); });
    return refusal;
}

void Screen::Focus(Control& control) const {
    if (Reach(control) == Refusal::None && TabIndexOf(control) != 0) control.Owner.SetFocus(control);
}

Text Screen::Acceptable(const TextBox& box, TextView text) {
    Text accepted;
    for (const char16_t c : text) {
        const bool full = box.MaxLength > 0 && accepted.size() >= static_cast<std::size_t>(box.MaxLength);
        if (!full && c >= u' ' && ToWindows1252(c)) accepted += c;
    }
    return accepted;
}

Refusal Screen::Type(TextBox& box, TextView text) {
    Refusal refusal = Reach(box);
    if (refusal == Refusal::None && box.Locked) refusal = Refusal::Disabled;
    if (refusal != Refusal::None) return refusal;
    Focus(box);
    box.Text = Acceptable(box, text);
    Settle();
    return Refusal::None;
}

Refusal Screen::Select(ListBox& list, int index) {
    const Refusal refusal = Reach(list);
    if (refusal != Refusal::None || index < 0 || index >= static_cast<int>(list.List.size())) return refusal;
    list.ListIndex = index;
    return Click(list);
}

bool Screen::PressShortcut(Form& form, const Key& key) {
    const auto menus = form.Menus();
    const auto menu = std::ranges::find_if(menus, [&key](const Menu* m) {
        return m->Shortcut.Code != KeyNone && m->Shortcut.Code == key.Code && m->Shortcut.Control == key.Control;
    });
    if (menu == menus.end()) return false;
    Trigger(**menu);
    return true;
}

bool Screen::PressButton(Form& form, const Key& key) {
    Control* const focus = form.Focus();
    const bool onButton = focus != nullptr && focus->kind == Kind::CommandButton;
    if ((key.Code == KeyEnter || key.Code == KeySpace) && onButton) return Trigger(*focus) == Refusal::None;
    return std::ranges::any_of(form.Controls(), [this, &key](Control* control) {
        if (control->kind != Kind::CommandButton) return false;
        const auto& button = static_cast<const CommandButton&>(*control);
        const bool meant = (key.Code == KeyEnter && button.Default) || (key.Code == KeyEscape && button.Cancel);
        return meant && Trigger(*control) == Refusal::None;
    });
}

void Screen::PressPreview(Form& form, const Key& key) {
    if (!form.KeyPreview || key.Character == 0 || !form.OnKeyPress) return;
    const int keyAscii = ToWindows1252(key.Character).value_or('?');
    Run([&form, keyAscii] { form.OnKeyPress(keyAscii); });
}

bool Screen::PressAgain(Form& form, const Key& key) {
    const bool isTyped = form.Focus() != nullptr && form.Focus()->kind == Kind::TextBox;
    if (isTyped && key.Code != KeyEnter && key.Code != KeyEscape) return false;
    const bool isArrow = key.Code >= KeyLeft && key.Code <= KeyDown;
    if (isArrow && form.KeyPreview && form.OnKeyDown) {
        Run([&form, &key] { form.OnKeyDown(key.Code); });
    } else {
        PressInList(form, key);
    }
    return true;
}

/// The keys by which a player goes through the lines of the list box that has the focus.
bool Screen::PressInList(Form& form, const Key& key) {
    constexpr int kPage = 10;
    Control* const focus = form.Focus();
    if (focus == nullptr || focus->kind != Kind::ListBox) return false;
    auto& list = static_cast<ListBox&>(*focus);
    const int last = static_cast<int>(list.List.size()) - 1;
    const std::array<std::pair<int, int>, 6> lines = {{{KeyUp, list.ListIndex - 1},
                                                       {KeyDown, list.ListIndex + 1},
                                                       {KeyPageUp, list.ListIndex - kPage},
                                                       {KeyPageDown, list.ListIndex + kPage},
                                                       {KeyHome, 0},
                                                       {KeyEnd, last}}};
    for (const auto& [code, line] : lines) {
        if (code != key.Code || last < 0) continue;
        const int wanted = std::clamp(line, 0, last);
        if (wanted != list.ListIndex) Select(list, wanted);
        return true;
    }
    return false;
}

bool Screen::Press(const Key& key) {
    if (Front() == nullptr || Reach(*Front()) != Refusal::None) return false;
    Form& form = *Front();
    const bool isHelp = !key.Repeated && form.OnHelpKey && form.OnHelpKey(key);
    if (isHelp || cursor_.Take(form, key)) {
        Settle();
        return true;
    }
    if (key.Repeated) return PressAgain(form, key);
    if (const Control* const stop = cursor_.PressedBy(key)) {
        Run(stop->Click);
        return true;
    }
    if (form.KeyPreview && form.OnKeyDown) Run([&form, &key] { form.OnKeyDown(key.Code); });
    if (PressShortcut(form, key)) return true;
    // Esc belongs to the cancel button alone; every other key with a character is seen by the form first.
    if (key.Code == KeyEscape && PressButton(form, key)) return true;
    PressPreview(form, key);
    return Front() != &form || PressButton(form, key) || PressInList(form, key);
}

void Screen::TypeKey(const Key& key) {
    Control* const focus = Front() == nullptr ? nullptr : Front()->Focus();
    if (focus == nullptr || focus->kind != Kind::TextBox || key.Character < u' ') return;
    auto& box = static_cast<TextBox&>(*focus);
    Type(box, box.Text + key.Character);
}

/// A tick that hides elements: they are shown again before the platform draws.
void Screen::TickStill(const Timer& timer) {
    std::vector<const Control*> hidden;
    std::ranges::copy_if(timer.Owner.Controls(), std::back_inserter(hidden),
                         [](const Control* control) { return control->Visible && control->Click; });
    timer.Click();
    std::erase_if(hidden, [](const Control* control) { return control->Visible; });
    timer.ShownBy->Click();
    for (const Control* control : hidden) {
        if (!IsMarked(*control)) marked_.push_back({control, &timer});
    }
}

bool Screen::IsMarked(const Control& control) const {
    return std::ranges::any_of(marked_, [this, &control](const Marked& marked) {
        const Timer& timer = *marked.hiddenBy;
        return still_ && marked.control == &control && (timer.IsEnabled() || timer.ShownBy->IsEnabled());
    });
}

bool Screen::Tick(Moment now) {
    Timer* const timer = scheduler_.TakeDue(now);
    if (timer == nullptr) return false;
    if (still_ && timer->ShownBy != nullptr) {
        Run([this, timer] { TickStill(*timer); });
    } else {
        Run(timer->Click);
    }
    return true;
}

}  // namespace platform
