#pragma once

#include <QEvent>

#include "desktop/windows/WindowDisplay.h"
#include "headless/Hand.h"

/// The player of a script at the real windows: he acts by events of mouse and keyboard and reads what the widgets show.
namespace platform::hand {

/// The hand on the windows of a display. Every deed reaches the window as an event of the window system. Where
/// something lies over the widget that is meant, the event goes to the widget itself.
class WidgetHand : public headless::Hand {
public:
    /// Both must outlive the hand.
    WidgetHand(Screen& screen, const desktop::WindowDisplay& display) : screen_(screen), display_(display) {}

    Refusal Click(Control& control) override;
    Refusal Click(Form& form) override;
    Refusal Press(const Key& key) override;
    Refusal Type(TextBox& box, TextView text) override;
    Refusal Select(ListBox& list, int index) override;
    Refusal Close() override;

protected:
    /// A deed that is being done, which may have others in it. Windows that have closed are gone before the next deed,
    /// unless their own event is still on its way.
    class Deed {
    public:
        explicit Deed(WidgetHand& hand);
        ~Deed() { --hand_.depth_; }
        Deed(const Deed&) = delete;
        Deed& operator=(const Deed&) = delete;

    private:
        WidgetHand& hand_;
    };

    [[nodiscard]] Refusal Reach(const Form& form) const;
    [[nodiscard]] Refusal Reach(const Control& control) const;
    [[nodiscard]] QWidget* WidgetOf(const Control& control) const;

private:
    void ClickEntry(Menu& entry);
    void Strike(const Key& key);
    void SendKey(QEvent::Type type, const Key& key);

    Screen& screen_;
    const desktop::WindowDisplay& display_;
    int depth_ = 0;
    quint64 keyTime_ = 1;  // milliseconds; no two presses of the player bear one
};

}  // namespace platform::hand
