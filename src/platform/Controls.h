#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Key.h"
#include "platform/Text.h"

/// The elements of a window: names with a state. The logic reads and writes the state and never knows how it is drawn;
/// a platform shows it after each event. Every element goes back to its design state when its form is loaded.
///
///     struct Dialog : Form {
///         Label title{*this, "title", {210, 120, 4065, 555}, {.Caption = u"Hola", .FontSize = 18}};
///     };
///
/// Lengths are twips (1,440 to the inch, 15 to the pixel), from the top left corner of the client area. Font sizes are
/// points of 20 twips. Elements are declared from the front of the window to its back.
namespace platform {

class Form;
class Scheduler;

/// A colour 0xRRGGBB, or none.
struct Color {
    std::int32_t Rgb = -1;

    constexpr Color() = default;
    constexpr Color(std::int32_t rgb) : Rgb(rgb) {}  // NOLINT(google-explicit-constructor): written as a number
    [[nodiscard]] constexpr bool IsNone() const { return Rgb < 0; }
    bool operator==(const Color&) const = default;
};
constexpr Color NoColor{};
constexpr Color Black{0x000000};
constexpr Color White{0xFFFFFF};

/// Where an element stands. An element without size takes no room (menus, timers).
struct Place {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;

    bool operator==(const Place&) const = default;
};
constexpr bool Hidden = false;

/// The place of a picture box: its corner stands on a whole pixel of the design, so that two of them that are less than
/// a pixel apart meet.
constexpr Place OnPixels(Place place) {
    constexpr int kPixel = 15;
    const auto floored = [](int twips) { return twips - (twips % kPixel + kPixel) % kPixel; };
    place.Left = floored(place.Left);
    place.Top = floored(place.Top);
    return place;
}

enum class FontName { MSSansSerif, Arial, CourierNew, TimesNewRoman };
enum class Alignment { Left, Centre };
enum class Kind { Label, PictureBox, Image, Shape, Line, CommandButton, TextBox, ListBox, Menu, Timer };

/// What a finger does that is drawn across an element: for each step it presses a key.
struct Pull {
    int Step = 0;  ///< twips; 0: nothing
    int LeftKey = KeyNone;
    int RightKey = KeyNone;
};

/// What the elements of every kind have in common. An element registers itself with its form.
class Control : public Place {
public:
    Control(Form& form, Kind kind, std::string_view name, int index, Place place)
        : Place(place), kind(kind), Name(name), Index(index), Owner(form), designPlace_(place) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Back to the state of the design.
    virtual void ToDesign() { static_cast<Place&>(*this) = designPlace_; }

    /// The name with the index of an array element: "lblTecla(5)".
    [[nodiscard]] std::string FullName() const;

    /// False for an element that is there and answers no click (a disabled button or menu entry).
    [[nodiscard]] virtual bool IsEnabled() const { return true; }

    const Kind kind;
    const std::string Name;
    const int Index;  ///< 1 for the first of an array (0 where an array counts from 0); -1 outside arrays
    Form& Owner;

    /// What a click does; a tick, for a timer. Set once, when the program is put together.
    std::function<void()> Click;

    /// What a finger does on the element. Set once, like Click.
    Pull Drawn{};

    /// Whether the program waits for a click on the element just now: platforms then point it out. Set once, like
    /// Click; not set for what can be clicked at most times.
    std::function<bool()> Wanted;

    /// Whether its view may glide sideways to a new place. Set once, like Click.
    bool Glides = false;

    /// What a screen reader calls the element; empty: it has nothing to say and is left out. Where this is not set,
    /// labels and buttons are called by their caption and pictures and figures are left out. Set once, like Click.
    std::function<Text()> SpokenName;

    /// A player without a mouse reaches the element by Tab and not by the arrow keys. Set once, like Click.
    bool ByTabAlone = false;

protected:
    static void Register(Control& control);

private:
    const Place designPlace_;
};

/// An element of one kind: its place, its look, and the design of both.
template <Kind K, class LookType>
class Element : public Control, public LookType {
public:
    using Look = LookType;

    Element(Form& form, std::string_view name, Place place, Look look = {}) : Element(form, name, -1, place, look) {}
    Element(Form& form, std::string_view name, int index, Place place, Look look)
        : Control(form, K, name, index, place), Look(look), design_(std::move(look)) {
        if constexpr (K != Kind::Menu) Register(*this);
    }

    void ToDesign() override {
        Control::ToDesign();
        static_cast<Look&>(*this) = design_;
    }

    [[nodiscard]] bool IsEnabled() const override {
        if constexpr (requires(const Look& look) { look.Enabled; }) return this->Enabled;
        return true;
    }

private:
    const Look design_;
};

/// A text in a box. It wraps at blanks and line breaks; "&" is a plain character.
struct LabelLook {
    Text Caption{};
    Color BackColor{};  ///< none: transparent
    Color ForeColor = Black;
    FontName Font = FontName::MSSansSerif;
    double FontSize = 8.25;
    bool FontBold = false;
    Alignment Align = Alignment::Centre;
    int BorderStyle = 0;  ///< 1: a single border
    Text ToolTipText{};
    bool Snug = false;  ///< the ground lies behind the text alone, not in the whole box
    int Masked = 0;     ///< of the text, this many twips from the left edge of the box are not drawn

    bool operator==(const LabelLook&) const = default;
};
using Label = Element<Kind::Label, LabelLook>;

/// A picture, shown in its own size; a picture box takes the size of the file that is loaded into it. While Picture
/// names no file that can be read, the last one shown stays.
struct PictureLook {
    std::string Stored{};  ///< the picture stored with the form, by its resource name
    Text Picture{};        ///< the file loaded into the element, by its bare name; empty: the stored one
    Text ToolTipText{};

    bool operator==(const PictureLook&) const = default;
};
using PictureBox = Element<Kind::PictureBox, PictureLook>;

/// A picture like PictureBox, but among the labels and shapes instead of before them.
using Image = Element<Kind::Image, PictureLook>;

enum class Figure { Rectangle, RoundedRectangle, Oval };

struct ShapeLook {
    Figure Shape = Figure::RoundedRectangle;
    Color FillColor{};          ///< none: only the border is drawn
    Color BorderColor = Black;  ///< none: no border
    int BorderWidth = 1;        ///< in pixels at 15 twips

    bool operator==(const ShapeLook&) const = default;
};
using Shape = Element<Kind::Shape, ShapeLook>;

/// From the top left to the bottom right corner of its place.
struct LineLook {
    Color BorderColor = Black;
    int BorderWidth = 1;

    bool operator==(const LineLook&) const = default;
};
using Line = Element<Kind::Line, LineLook>;

struct ButtonLook {
    Text Caption{};
    Color BackColor{};  ///< none: the platform's own
    FontName Font = FontName::MSSansSerif;
    double FontSize = 8.25;
    bool FontBold = false;
    bool Enabled = true;
    bool Default = false;  ///< pressed by Enter
    bool Cancel = false;   ///< pressed by Esc
    int TabIndex = 0;      ///< place in the order of the focus; 0: never takes it
    bool Covered = false;  ///< lies behind other elements, so that only its key reaches it

    bool operator==(const ButtonLook&) const = default;
};
using CommandButton = Element<Kind::CommandButton, ButtonLook>;

/// A line that the player edits. It refuses characters that Windows-1252 does not have.
struct TextBoxLook {
    platform::Text Text{};
    int MaxLength = 0;      ///< characters; 0: no limit
    bool Password = false;  ///< each character shown as "*"
    bool Locked = false;    ///< read only
    bool Enabled = true;
    Color BackColor = White;
    Color ForeColor = Black;
    FontName Font = FontName::MSSansSerif;
    double FontSize = 12;
    bool FontBold = false;
    Alignment Align = Alignment::Left;
    int TabIndex = 0;

    bool operator==(const TextBoxLook&) const = default;
};
using TextBox = Element<Kind::TextBox, TextBoxLook>;

/// Lines of text of which one is selected. Lines count from 0; ListIndex is -1 without a selection.
struct ListBoxLook {
    std::vector<Text> List{};
    int ListIndex = -1;
    bool Enabled = true;
    FontName Font = FontName::MSSansSerif;
    double FontSize = 9.75;
    bool FontBold = false;
    int TabIndex = 0;

    bool operator==(const ListBoxLook&) const = default;
};
using ListBox = Element<Kind::ListBox, ListBoxLook>;

/// A menu of the menu bar, or an entry of one. Its check mark changes by the program alone, never by the click itself.
/// What a menu entry's check mark means, if it can have one.
enum class MenuMark {
    None,   ///< it has none
    Own,    ///< the entry switches something on and off
    OneOf,  ///< of several entries one is chosen
};

struct MenuLook {
    Text Caption{};  ///< "&" stands before the mnemonic; "-" alone is a separator
    Key Shortcut{};
    bool Checked = false;
    bool Enabled = true;
    MenuMark Mark = MenuMark::None;
    Text Offer{};  ///< what a small screen writes on a large button for this entry; empty: it has none

    bool operator==(const MenuLook&) const = default;
};
class Menu : public Element<Kind::Menu, MenuLook> {
public:
    Menu(Form& form, std::string_view name, MenuLook look);
    Menu(Menu& parent, std::string_view name, MenuLook look);

    const Menu* const Parent = nullptr;  ///< null for a menu of the bar
};

/// Calls its Click every Interval milliseconds while it is enabled. Starting a running timer changes nothing.
class Timer : public Control {
public:
    Timer(Form& form, std::string_view name, int interval, bool enabled = false, const Timer* shownBy = nullptr);

    void Start();
    void Stop();
    void ToDesign() override;
    [[nodiscard]] bool IsEnabled() const override { return enabled_; }

    /// Who counts the time; null before the form is first loaded.
    void Attach(Scheduler& scheduler) { scheduler_ = &scheduler; }

    const int Interval;
    /// The timer that brings back what this one hides: the two blink. Null for a timer of any other kind.
    const Timer* const ShownBy;

private:
    const bool designEnabled_;
    bool enabled_ = false;
    Scheduler* scheduler_ = nullptr;
};

/// What a screen reader calls an element: its spoken name, or else its caption; empty for one that is left out.
Text SpokenNameOf(const Control& control);

/// Elements under one name, counted from First: lblTecla(5).
template <class T, int N, int First = 1>
class ControlArray {
public:
    /// `design(i)` gives place and look of element i, as a pair.
    template <class Design>
    ControlArray(Form& form, std::string_view name, Design design)
        : ControlArray(form, name, design, std::make_integer_sequence<int, N>()) {}

    T& operator()(int index) { return items_.at(static_cast<std::size_t>(index - First)); }
    const T& operator()(int index) const { return items_.at(static_cast<std::size_t>(index - First)); }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }

    /// One handler for all; it gets the index.
    template <class Handler>
    void OnClick(Handler handler) {
        for (T& item : items_) item.Click = [handler, index = item.Index] { handler(index); };
    }

private:
    template <class Design, int... I>
    ControlArray(Form& form, std::string_view name, Design& design, std::integer_sequence<int, I...> /*indexes*/)
        : items_{T(form, name, I + First, design(I + First).first, design(I + First).second)...} {}

    std::array<T, N> items_;
};

}  // namespace platform
