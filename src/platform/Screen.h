#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/Cursor.h"
#include "platform/Scheduler.h"
#include "platform/Services.h"

namespace platform {

/// Of a picture, in pixels of 15 twips.
struct PictureSize {
    int Width = 0;
    int Height = 0;
};

/// How a platform brings windows before the player's eyes. Screen calls it; it holds none of the rules.
class Display {
public:
    virtual ~Display() = default;

    /// A form that was not on the screen comes up before all others.
    virtual void Opened(Form& form, bool modal) = 0;
    /// A form leaves the screen.
    virtual void Closed(Form& form) = 0;
    /// An event has run to its end, or a modal form begins to wait: what has changed in the open forms is to be shown.
    virtual void Refresh() = 0;
    /// Takes the player's input until `done` holds.
    virtual void WaitUntil(const std::function<bool()>& done) = 0;
    /// Ends the program; does not come back.
    virtual void End() = 0;
    /// The size of a picture file, by its bare name; nothing if it cannot be told.
    [[nodiscard]] virtual std::optional<PictureSize> SizeOf(TextView /*picture*/) const { return std::nullopt; }
};

/// Why an event does not reach an element.
enum class Refusal { None, Closed, Blocked, Hidden, Disabled };

/// The rules of windows that both platforms keep: which forms are loaded and shown, what a modal form blocks, which
/// element an event reaches, key preview, shortcuts, default and cancel buttons, closing routines, timers, the size of
/// picture boxes.
class Screen : public Forms {
public:
    Screen(Display& display, Scheduler& scheduler) : display_(display), scheduler_(scheduler) {}

    void Load(Form& form) override;
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Hide(Form& form) override;
    void Unload(Form& form) override;
    void End() override { display_.End(); }

    // What the player does. Each runs its handlers to their end and then refreshes the display.

    Refusal Click(Control& control);
    Refusal Click(Form& form);
    /// A key for the form in front: help, the cursor of players without a mouse, key preview, shortcuts, default and
    /// cancel button, the lines of a list box.
    /// A repetition counts only in a text box, in a list box, and as an arrow for a form that reads codes of keys.
    /// False: the game does not take it, and a text box that has the focus may.
    bool Press(const Key& key);
    /// The character of a key goes to the end of the text box that has the focus.
    void TypeKey(const Key& key);
    /// The text of a text box as the player leaves it, within the limits of the box.
    Refusal Type(TextBox& box, TextView text);
    /// Line `index` of a list box; one that it does not have is ignored.
    Refusal Select(ListBox& list, int index);
    /// The closing cross of a form.
    Refusal Close(Form& form);
    /// The player moves the focus.
    void Focus(Control& control) const;
    /// Runs the first timer that is due; false when none is.
    bool Tick(Moment now);
    /// For players whom blinking disturbs: as long as it is asked for, what blinks stays in sight.
    void KeepStill(bool still) { still_ = still; }

    /// The forms on the screen, back to front.
    [[nodiscard]] const std::vector<Form*>& Shown() const { return shown_; }
    [[nodiscard]] Form* Front() const override { return shown_.empty() ? nullptr : shown_.back(); }
    /// Whether the player can reach a form, and an element of it.
    [[nodiscard]] Refusal Reach(const Form& form) const;
    [[nodiscard]] Refusal Reach(const Control& control) const;
    /// Where a player without a mouse is; null for nowhere.
    [[nodiscard]] const Control* Here() const { return cursor_.Here(); }
    /// Whether the element gets a mark, because it would blink and the player wishes that nothing blinks.
    [[nodiscard]] bool IsMarked(const Control& control) const;

    /// The part of a text that a text box takes.
    static Text Acceptable(const TextBox& box, TextView text);

private:
    /// A box and the file to whose size it was last fitted.
    struct FittedBox {
        const Form* form;
        PictureBox* box;
        Text fitted;
    };
    /// An element that would blink, and the first timer of the two that would have it blink.
    struct Marked {
        const Control* control;
        const Timer* hiddenBy;
    };
    bool Contains(const std::vector<Form*>& forms, const Form& form) const;
    void Open(Form& form, bool modal);
    void FitPictures();
    void FitToPicture(PictureBox& box, Text& fitted) const;
    void Run(const std::function<void()>& handler);
    void Settle();
    Refusal Trigger(Control& control);
    bool PressShortcut(Form& form, const Key& key);
    bool PressButton(Form& form, const Key& key);
    void PressPreview(Form& form, const Key& key);
    bool PressAgain(Form& form, const Key& key);
    bool PressInList(Form& form, const Key& key);
    void TickStill(const Timer& timer);

    Display& display_;
    Scheduler& scheduler_;
    std::vector<Form*> loaded_;
    std::vector<Form*> shown_;
    std::vector<Form*> modal_;
    std::vector<Form*> closing_;
    Cursor cursor_{*this};
    std::vector<FittedBox> fitted_;  // of the loaded forms
    bool still_ = false;
    std::vector<Marked> marked_;
};

}  // namespace platform
