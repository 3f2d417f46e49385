#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/HeldKey.h"
#include "platform/Screen.h"
#include "platform/Wishes.h"
#include "web/States.h"

namespace platform::web {

/// An event in its parts, the first of which says what it is: "click", "Zarpi", "lblTecla(5)".
using Event = std::vector<std::string>;

/// Shows the windows on the page and takes the player's input from it. The page is told what has changed in one message
/// after each event, just before the next one is taken.
class PageDisplay : public Display {
public:
    explicit PageDisplay(const Scheduler& scheduler) : scheduler_(scheduler) {}

    /// Where the player's input goes; to be told before the first form is shown.
    void Attach(Screen& screen) { screen_ = &screen; }

    void Opened(Form& form, bool modal) override;
    void Closed(Form& form) override;
    void Refresh() override {}
    void WaitUntil(const std::function<bool()>& done) override;
    [[noreturn]] void End() override;
    [[nodiscard]] std::optional<PictureSize> SizeOf(TextView picture) const override;

    /// Adds an object to the message.
    void Tell(const std::string& object);
    /// Adds what has changed so far.
    void TellChanges();
    /// Carries out an event. False: it was a key that the screen leaves to the element that has the focus.
    bool Take(const Event& event);
    /// Tells the page all that has changed.
    void Show();

    /// Has the page print what the client area of a form shows now, in its designed order.
    void Print(const Form& form);

    /// Waits, while time passes and no window takes input, until the player has answered what the page asks. What he
    /// chose: false to cancel.
    bool WaitForAnswer();

    std::function<void()> OnUnsaved;  ///< what was written could not be stored

private:
    /// What the page was last told of an open form.
    struct Window {
        std::optional<Frame> frame;
        std::map<const Menu*, MenuLook> menus;
        std::map<const Control*, Seen> elements;
        std::vector<const Control*> layers;
        const Control* focus = nullptr;
    };

    Event NextEvent();
    void TakeInput(const Event& event, Form& form);
    bool TakeKey(const Event& event);
    void Heed(const Wishes& wishes);
    void Tick();
    void TellChanges(const Form& form, Window& window);
    void TellElements(const Form& form, Window& window, const Order* order);
    void TellLayers(const Form& form, Window& window);
    void TellWake();

    const Scheduler& scheduler_;
    Screen* screen_ = nullptr;
    HeldKey held_;
    const Control* here_ = nullptr;  // in the ring, as the page was last told
    Wishes wishes_;
    std::optional<Room> room_;  // of a window below its bar
    std::map<const Form*, Window> windows_;
    std::string message_;  // objects, divided by commas
};

/// Milliseconds since the page was opened.
Moment Now();

}  // namespace platform::web
