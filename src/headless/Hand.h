#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "headless/Properties.h"
#include "platform/Screen.h"

namespace platform::headless {

/// What the player of a script does, one class a platform. Each deed answers None, or why a player could not do it, and
/// then nothing has happened. A deed that brings up a modal form comes back when that has closed.
class Hand {
public:
    virtual ~Hand() = default;

    /// An element or a menu entry, whatever lies over it.
    virtual Refusal Click(Control& control) = 0;
    /// The ground of a window.
    virtual Refusal Click(Form& form) = 0;
    /// A key for the window in front. What it types goes to the end of the text box that has the focus.
    virtual Refusal Press(const Key& key) = 0;
    /// What a text box holds gives way to `text`, as far as the box takes it.
    virtual Refusal Type(TextBox& box, TextView text) = 0;
    /// Line `index` of a list box; one that it does not have is ignored.
    virtual Refusal Select(ListBox& list, int index) = 0;
    /// The closing cross of the window in front.
    virtual Refusal Close() = 0;
};

/// What the player of a script sees, where a platform shows more than the state of the elements itself.
class Eye {
public:
    virtual ~Eye() = default;

    /// What is seen of a property whose state is `state`; nothing where both agree or where there is nothing to see.
    [[nodiscard]] virtual std::optional<Value> Seen(const Control& control, std::string_view property,
                                                    const Value& state) const = 0;
    [[nodiscard]] virtual std::optional<Value> Seen(const Form& form, std::string_view property,
                                                    const Value& state) const = 0;
    /// The names of the windows on the screen, back to front: "Zarpi frmNivel", "none".
    [[nodiscard]] virtual std::string Forms() const = 0;
    /// The element that has the focus in the window in front: "frmGuardar.txtContraseña", "none".
    [[nodiscard]] virtual std::string Focus() const = 0;
    /// The element that is marked as the one where a player without a mouse is: "Zarpi.lblLetra(2)", "none".
    [[nodiscard]] virtual std::string Ringed() const = 0;
};

/// The hand on a platform whose elements are all there is.
class ScreenHand : public Hand {
public:
    /// The screen must outlive the hand.
    explicit ScreenHand(Screen& screen) : screen_(screen) {}

    Refusal Click(Control& control) override { return screen_.Click(control); }
    Refusal Click(Form& form) override { return screen_.Click(form); }
    Refusal Press(const Key& key) override;
    Refusal Type(TextBox& box, TextView text) override { return screen_.Type(box, text); }
    Refusal Select(ListBox& list, int index) override { return screen_.Select(list, index); }
    Refusal Close() override;

private:
    Screen& screen_;
};

}  // namespace platform::headless
