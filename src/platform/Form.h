#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Narrow.h"

namespace platform {

/// What the frame of a window shows and does.
struct FormLook {
    Text Caption{};
    int Width = 0;  ///< of the client area, twips
    int Height = 0;
    int Left = -1;  ///< of the client area, from the corner of that of the main window; -1: centred on the screen
    int Top = -1;
    Color BackColor = White;
    std::string Background{};  ///< picture stored with the form that fills it; empty: none
    std::string Icon{};        ///< resource name
    bool MinButton = false;
    bool KeyPreview = false;  ///< the form gets every key before its controls
    Text FingerHint{};        ///< told below the window to who plays with fingers alone; empty: nothing
    bool Shared = false;      ///< a keepsake, which a platform offers to pass on as a picture

    bool operator==(const FormLook&) const = default;
};

/// A window: its elements in their layer order, its frame, its handlers. Windows derive from it and declare their
/// elements from front to back. The elements belong to the window and live as long as it does.
class Form : public FormLook {
public:
    Form(std::string_view name, FormLook look) : FormLook(look), Name(name), design_(std::move(look)) {}
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// The elements that can be seen, from front to back. Picture boxes and buttons and what takes the focus always
    /// stand before labels, shapes, lines and images.
    [[nodiscard]] std::span<Control* const> Controls() const { return controls_; }
    [[nodiscard]] std::span<Menu* const> Menus() const { return menus_; }
    [[nodiscard]] std::span<Timer* const> Timers() const { return timers_; }

    /// The element of this name, "lblTecla(5)" for one of an array; null if there is none.
    [[nodiscard]] Control* Find(std::string_view fullName) const;

    /// Brings an element to the front of its layer.
    void ZOrder(Control& control);

    /// Gives the focus to an element that takes it.
    void SetFocus(Control& control) { focus_ = &control; }
    [[nodiscard]] Control* Focus() const { return focus_; }

    /// Back to the state of the design: elements, layers, frame, focus on the first that takes it.
    void ToDesign();

    /// The element that has the focus when the window comes up; null if none takes it.
    [[nodiscard]] Control* FirstFocus() const;

    const std::string Name;
    Text SpokenTitle;  ///< what a screen reader calls the window; empty: its caption. Set once

    // Handlers, set once when the program is put together.
    std::function<void()> OnLoad;
    std::function<void()> OnClick;
    std::function<void(int keyAscii)> OnKeyPress;  ///< Windows-1252 or control code; with KeyPreview only
    std::function<void(int keyCode)> OnKeyDown;    ///< with KeyPreview only
    std::function<void()> OnQueryUnload;           ///< the closing routine

    /// The order of the elements on a small screen; empty: they always stand as designed. Set once.
    std::function<std::optional<Order>(const Room&)> Narrow;

    /// A key that helps players without a mouse or without sight, asked before anything else; false: it is none of
    /// these.
    std::function<bool(const Key&)> OnHelpKey;

    // Elements register themselves when they are made.
    void Add(Control& control);
    void Add(Menu& menu) { menus_.push_back(&menu); }
    void Add(Timer& timer) { timers_.push_back(&timer); }

private:
    const FormLook design_;
    std::vector<Control*> controls_;
    std::vector<Control*> designOrder_;
    std::vector<Menu*> menus_;
    std::vector<Timer*> timers_;
    Control* focus_ = nullptr;
};

/// Whether elements of this kind stand in the front layer.
constexpr bool InFrontLayer(Kind kind) {
    return kind == Kind::PictureBox || kind == Kind::CommandButton || kind == Kind::TextBox || kind == Kind::ListBox;
}

/// The place of an element in the order of the focus; 0 if it does not take it.
int TabIndexOf(const Control& control);

}  // namespace platform
