#pragma once

#include <string>
#include <variant>

#include "platform/Form.h"
#include "platform/Wishes.h"

/// What a player sees of windows and elements, to be compared with what the page was told of them, and as the page
/// takes it: each one object in JSON.
namespace platform::web {

/// The frame of a form: its look, and its order on a small screen.
struct Frame {
    FormLook look;
    int width = 0;  ///< of the client area, as it is shown
    int height = 0;
    bool isNarrow = false;  ///< as wide as the screen

    bool operator==(const Frame&) const = default;
};
Frame FrameOf(const Form& form, const Order* order);
std::string StateOf(const Form& form, const Frame& frame);

/// The looks of all kinds of elements that are shown.
using Look = std::variant<LabelLook, PictureLook, ShapeLook, LineLook, ButtonLook, TextBoxLook, ListBoxLook>;

/// An element as a player with his wishes is to see it. Of a hidden one only that it is hidden, for most are.
struct Seen {
    Stand stand;
    Look look{};
    Text spoken{};
    bool clicks = false;
    bool isMarked = false;  ///< a mark tells what its blinking would have told
    bool isWanted = false;  ///< a click on it is waited for

    bool operator==(const Seen&) const = default;
};
Seen SeenOf(const Control& control, const Stand& stand, const Wishes& wishes, bool isMarked);
std::string StateOf(const Control& control, const Seen& seen);

/// A menu of the bar or an entry of one.
std::string StateOf(const Menu& menu);

/// Whether the player can ever see an element: not one that lies behind others for its key alone.
bool IsSeen(const Control& control);

}  // namespace platform::web
