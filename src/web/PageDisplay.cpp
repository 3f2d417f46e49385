#include "web/PageDisplay.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "web/Json.h"
#include "web/Page.h"
#include "web/States.h"

namespace platform::web {

namespace {

constexpr std::size_t kLongestEvent = 4096;

Event Parts(std::string_view text) {
    Event event;
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = text.find('\n');
        event.emplace_back(text.substr(0, end));
        if (end != std::string_view::npos) text.remove_prefix(end + 1);
    }
    return event;
}

/// Part `index` of an event; empty if there is none.
std::string_view Part(const Event& event, std::size_t index) {
    return index < event.size() ? std::string_view(event[index]) : std::string_view();
}

int NumberOf(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

}  // namespace

Moment Now() {
    return Moment(static_cast<std::int64_t>(page_now()));
}

void PageDisplay::Show() {
    TellChanges();
    const std::string list = "[" + message_ + "]";
    page_tell(list.data(), list.size());
    message_.clear();
}

void PageDisplay::Tell(const std::string& object) {
    message_.append(message_.empty() ? "" : ",").append(object);
}

void PageDisplay::Opened(Form& form, bool modal) {
    windows_[&form] = {};
    Tell(Json("open").Text("form", form.Name).Flag("modal", modal).Done());
}

void PageDisplay::Closed(Form& form) {
    windows_.erase(&form);
    Tell(Json("close").Text("form", form.Name).Done());
}

void PageDisplay::End() {
    Show();
    page_end();
}

std::optional<PictureSize> PageDisplay::SizeOf(TextView picture) const {
    const std::string name = ToUtf8(picture);
    const std::uint32_t size = page_picture_size(name.data(), name.size());
    if (size == 0) return std::nullopt;
    return PictureSize{.Width = static_cast<int>(size >> 16U), .Height = static_cast<int>(size & 0xFFFFU)};
}

void PageDisplay::WaitUntil(const std::function<bool()>& done) {
    while (!done()) Take(NextEvent());
}

bool PageDisplay::WaitForAnswer() {
    while (true) {
        const Event event = NextEvent();
        if (event.front() == "answer") return Part(event, 1) == "1";
        const std::string& what = event.front();
        if (what == "tick" || what == "unsaved" || what == "wishes" || what == "room") Take(event);
    }
}

Event PageDisplay::NextEvent() {
    TellWake();
    Show();
    std::array<char, kLongestEvent> buffer{};
    return Parts({buffer.data(), page_next_event(buffer.data(), buffer.size())});
}

bool PageDisplay::Take(const Event& event) {
    const std::string& what = event.front();
    if (what == "key") return TakeKey(event);
    if (what == "tick") Tick();
    if (what == "unsaved" && OnUnsaved) OnUnsaved();
    if (what == "print" && screen_->Front() != nullptr) Print(*screen_->Front());
    if (what == "room") {
        room_ = Room{NumberOf(Part(event, 1)), NumberOf(Part(event, 2)), Part(event, 3) == "1"};
    }
    if (what == "wishes") Heed({.HighContrast = Part(event, 1) == "1", .Stillness = Part(event, 2) == "1"});
    const auto& shown = screen_->Shown();
    const auto form = std::ranges::find(shown, Part(event, 1), &Form::Name);
    if (form != shown.end()) TakeInput(event, **form);
    return true;
}

void PageDisplay::TakeInput(const Event& event, Form& form) {
    const std::string& what = event.front();
    if (what == "close") screen_->Close(form);
    if (what == "clickForm") screen_->Click(form);
    Control* const control = form.Find(Part(event, 2));
    if (control == nullptr) return;
    if (what == "click") screen_->Click(*control);
    if (what == "focus") screen_->Focus(*control);
    if (what == "type" && control->kind == Kind::TextBox) {
        screen_->Type(static_cast<TextBox&>(*control), FromUtf8(Part(event, 3)));
        windows_[&form].elements.erase(control);  // what is in the box is not what the page was told
    }
    if (what == "select" && control->kind == Kind::ListBox) {
        screen_->Select(static_cast<ListBox&>(*control), NumberOf(Part(event, 3)));
    }
}

void PageDisplay::Heed(const Wishes& wishes) {
    wishes_ = wishes;
    screen_->KeepStill(wishes.Stillness);
}

/// A key that the screen leaves goes on to the element that has the focus, on the page.
bool PageDisplay::TakeKey(const Event& event) {
    const auto character = static_cast<char16_t>(NumberOf(Part(event, 2)));
    Key key{.Code = NumberOf(Part(event, 1)), .Character = character, .Control = Part(event, 3) == "1"};
    if (key.Code == KeyNone) key = KeyOf(character);
    constexpr int kCharacters = 0x10000;  // keys without a code are told apart by their characters
    const int number = key.Code == KeyNone ? kCharacters + character : key.Code;
    key.Repeated = held_.Repeats(number, Moment(NumberOf(Part(event, 5))), Part(event, 4) == "1");
    const bool isTaken = screen_->Press(key);
    if (!isTaken) Tell(Json("leaveKey").Done());
    return isTaken;
}

void PageDisplay::Tick() {
    const Moment now = Now();
    while (screen_->Tick(now)) {
    }
}

void PageDisplay::TellChanges() {
    for (const Form* form : screen_->Shown()) TellChanges(*form, windows_[form]);
    const Control* const here = screen_->Here();
    if (std::exchange(here_, here) == here) return;
    Json json("ring");
    if (here != nullptr) json.Text("form", here->Owner.Name).Text("name", here->FullName());
    Tell(json.Done());
}

void PageDisplay::TellChanges(const Form& form, Window& window) {
    for (const Menu* menu : form.Menus()) {
        const MenuLook& look = *menu;
        const auto [told, isNew] = window.menus.try_emplace(menu, look);
        if (!isNew && told->second == look) continue;
        told->second = look;
        Tell(StateOf(*menu));
    }
    const auto order = form.Narrow && room_ ? form.Narrow(*room_) : std::nullopt;
    const Order* const shown = order ? &*order : nullptr;
    if (Frame frame = FrameOf(form, shown); window.frame != frame) {
        Tell(StateOf(form, frame));
        window.frame = std::move(frame);
    }
    TellElements(form, window, shown);
    TellLayers(form, window);
    const Control* const focus = form.Focus();
    if (std::exchange(window.focus, focus) == focus) return;
    Tell(Json("focus").Text("form", form.Name).Text("name", focus == nullptr ? "" : focus->FullName()).Done());
}

void PageDisplay::TellElements(const Form& form, Window& window, const Order* order) {
    for (const Control* control : form.Controls()) {
        if (!IsSeen(*control)) continue;
        const auto [told, isNew] = window.elements.try_emplace(control);
        // Most are hidden, and stay so.
        if (!isNew && !control->Visible && !told->second.stand.Visible) continue;
        Stand stand = AsDesigned(*control);
        if (order != nullptr && control->Visible) stand = order->StandOf(*control);
        Seen seen = SeenOf(*control, stand, wishes_, screen_->IsMarked(*control));
        if (!isNew && told->second == seen) continue;
        Tell(StateOf(*control, seen));
        told->second = std::move(seen);
    }
}

void PageDisplay::Print(const Form& form) {
    const auto room = std::exchange(room_, std::nullopt);
    TellChanges();
    Tell(Json("print").Text("form", form.Name).Done());
    room_ = room;
}

void PageDisplay::TellLayers(const Form& form, Window& window) {
    const auto controls = form.Controls();
    std::vector<const Control*> layers(controls.rbegin(), controls.rend());
    if (window.layers == layers) return;
    std::string names;
    for (const Control* control : layers) names.append(names.empty() ? "" : ",").append(Quoted(control->FullName()));
    Tell(Json("layers").Text("form", form.Name).Raw("names", "[" + names + "]").Done());
    window.layers = std::move(layers);
}

void PageDisplay::TellWake() {
    const auto due = scheduler_.NextDue();
    Json json("wake");
    if (due) json.Number("after", static_cast<long>(std::max<std::int64_t>(0, (*due - Now()).count())));
    Tell(json.Done());
}

}  // namespace platform::web
