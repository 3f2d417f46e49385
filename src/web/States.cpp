#include "web/States.h"

#include <array>

#include "platform/Contrast.h"
#include "web/Json.h"

namespace platform::web {

namespace {

constexpr std::array<std::string_view, 10> kKinds = {"Label",         "PictureBox", "Image",   "Shape", "Line",
                                                     "CommandButton", "TextBox",    "ListBox", "Menu",  "Timer"};
constexpr std::array<std::string_view, 4> kFonts = {"sans", "arial", "mono", "serif"};
constexpr std::array<std::string_view, 3> kMarks = {"none", "own", "oneOf"};
constexpr std::array<std::string_view, 3> kFigures = {"rectangle", "rounded", "oval"};

template <class Look>
void PutFont(Json& json, const Look& look) {
    constexpr double kTwipsPerPoint = 20;
    json.Text("font", kFonts.at(static_cast<std::size_t>(look.Font)))
        .Number("size", static_cast<long>(look.FontSize * kTwipsPerPoint))
        .Flag("bold", look.FontBold);
}

void Put(Json& json, const LabelLook& look) {
    json.Text("caption", look.Caption).Colour("back", look.BackColor).Colour("fore", look.ForeColor);
    PutFont(json, look);
    json.Flag("centred", look.Align == Alignment::Centre)
        .Flag("snug", look.Snug)
        .Flag("border", look.BorderStyle != 0)
        .Text("tip", look.ToolTipText);
    if (look.Masked != 0) json.Number("masked", look.Masked);
}

void Put(Json& json, const PictureLook& look) {
    json.Text("stored", look.Stored).Text("picture", look.Picture).Text("tip", look.ToolTipText);
}

void Put(Json& json, const ShapeLook& look) {
    json.Text("figure", kFigures.at(static_cast<std::size_t>(look.Shape)))
        .Colour("back", look.FillColor)
        .Colour("line", look.BorderColor)
        .Number("lineWidth", look.BorderWidth);
}

void Put(Json& json, const LineLook& look) {
    json.Colour("line", look.BorderColor).Number("lineWidth", look.BorderWidth);
}

void Put(Json& json, const ButtonLook& look) {
    json.Text("caption", look.Caption).Colour("back", look.BackColor);
    PutFont(json, look);
    json.Flag("enabled", look.Enabled).Flag("default", look.Default);
}

void Put(Json& json, const TextBoxLook& look) {
    json.Text("text", look.Text)
        .Flag("password", look.Password)
        .Flag("locked", look.Locked)
        .Flag("enabled", look.Enabled)
        .Colour("back", look.BackColor)
        .Colour("fore", look.ForeColor);
    PutFont(json, look);
    json.Flag("centred", look.Align == Alignment::Centre);
}

void Put(Json& json, const ListBoxLook& look) {
    std::string lines;
    for (const Text& line : look.List) lines.append(lines.empty() ? "" : ",").append(Quoted(ToUtf8(line)));
    json.Raw("lines", "[" + lines + "]").Number("selected", look.ListIndex).Flag("enabled", look.Enabled);
    PutFont(json, look);
}

LabelLook ReadableLook(const Label& label) {
    LabelLook look = label;
    const ReadableLabel readable = Readable(label);
    look.BackColor = readable.Ink.Ground;
    look.ForeColor = readable.Ink.Letters;
    look.Snug = readable.Snug;
    return look;
}

Look LookOf(const Control& control, bool highContrast) {
    switch (control.kind) {
        case Kind::Label: {
            const auto& label = static_cast<const Label&>(control);
            return highContrast ? ReadableLook(label) : LabelLook(label);
        }
        case Kind::PictureBox: return static_cast<const PictureBox&>(control);
        case Kind::Image: return static_cast<const Image&>(control);
        case Kind::Shape: return static_cast<const Shape&>(control);
        case Kind::CommandButton: return static_cast<const CommandButton&>(control);
        case Kind::TextBox: return static_cast<const TextBox&>(control);
        case Kind::ListBox: return static_cast<const ListBox&>(control);
        case Kind::Line:
        case Kind::Menu:
        case Kind::Timer: break;
    }
    return static_cast<const Line&>(control);
}

/// Makes the letters of a look, if it has any, as many times as large.
void ScaleLetters(Look& look, double scale) {
    std::visit(
        [scale](auto& one) {
            if constexpr (requires { one.FontSize; }) one.FontSize *= scale;
            if constexpr (requires { one.Masked; }) one.Masked = static_cast<int>(one.Masked * scale);
        },
        look);
}

/// The shortcut as a menu shows it: "Ctrl+N", "F5".
std::string ShortcutOf(const Key& key) {
    if (key.Code == KeyNone) return {};
    const std::string name =
        key.Code >= KeyF1 ? "F" + std::to_string(key.Code - KeyF1 + 1) : std::string(1, static_cast<char>(key.Code));
    return key.Control ? "Ctrl+" + name : name;
}

}  // namespace

Frame FrameOf(const Form& form, const Order* order) {
    if (order == nullptr)
        return {.look = static_cast<const FormLook&>(form), .width = form.Width, .height = form.Height};
    return {.look = static_cast<const FormLook&>(form),
            .width = order->Width,
            .height = order->Height,
            .isNarrow = order->FillsWidth};
}

std::string StateOf(const Form& form, const Frame& frame) {
    return Json("form")
        .Text("form", form.Name)
        .Text("caption", frame.look.Caption)
        .Text("spoken", form.SpokenTitle.empty() ? frame.look.Caption : form.SpokenTitle)
        .Number("width", frame.width)
        .Number("height", frame.height)
        .Flag("narrow", frame.isNarrow)
        .Colour("back", frame.look.BackColor)
        .Text("background", frame.look.Background)
        .Text("fingerHint", frame.look.FingerHint)
        .Flag("shared", frame.look.Shared)
        .Done();
}

Seen SeenOf(const Control& control, const Stand& stand, const Wishes& wishes, bool isMarked) {
    if (!stand.Visible) return {.stand = {Place{.Visible = false}}};
    Seen seen{.stand = stand,
              .look = LookOf(control, wishes.HighContrast),
              .spoken = SpokenNameOf(control),
              .clicks = control.Click != nullptr,
              .isMarked = isMarked,
              .isWanted = control.Wanted && control.Wanted()};
    const Place& design = control;
    if (control.kind == Kind::PictureBox && design == seen.stand) static_cast<Place&>(seen.stand) = OnPixels(design);
    if (stand.Scale != 1) ScaleLetters(seen.look, stand.Scale);
    return seen;
}

std::string StateOf(const Control& control, const Seen& seen) {
    Json json("element");
    json.Text("form", control.Owner.Name)
        .Text("name", control.FullName())
        .Text("kind", kKinds.at(static_cast<std::size_t>(control.kind)))
        .Flag("visible", seen.stand.Visible);
    if (!seen.stand.Visible) return json.Done();
    json.Number("left", seen.stand.Left)
        .Number("top", seen.stand.Top)
        .Number("width", seen.stand.Width)
        .Number("height", seen.stand.Height)
        .Flag("clicks", seen.clicks)
        .Number("tab", TabIndexOf(control))
        .Text("spoken", seen.spoken);
    if (seen.isMarked) json.Flag("marked", true);
    if (seen.isWanted) json.Flag("wanted", true);
    if (control.Glides) json.Flag("glides", true);
    if (control.Drawn.Step != 0) {
        const double step = control.Drawn.Step * seen.stand.Scale;
        json.Raw("drawn", "[" + std::to_string(static_cast<int>(step)) + "," + std::to_string(control.Drawn.LeftKey) +
                              "," + std::to_string(control.Drawn.RightKey) + "]");
    }
    std::visit([&json](const auto& look) { Put(json, look); }, seen.look);
    if (std::holds_alternative<PictureLook>(seen.look)) {
        json.Number("percent", static_cast<long>(seen.stand.Scale * 100));
    }
    return json.Done();
}

std::string StateOf(const Menu& menu) {
    return Json("menu")
        .Text("form", menu.Owner.Name)
        .Text("name", menu.FullName())
        .Text("parent", menu.Parent == nullptr ? std::string() : menu.Parent->FullName())
        .Text("caption", menu.Caption)
        .Text("shortcut", ShortcutOf(menu.Shortcut))
        .Flag("checked", menu.Checked)
        .Flag("enabled", menu.Enabled)
        .Text("mark", kMarks.at(static_cast<std::size_t>(menu.Mark)))
        .Text("offer", menu.Offer)
        .Done();
}

bool IsSeen(const Control& control) {
    return control.kind != Kind::CommandButton || !static_cast<const CommandButton&>(control).Covered;
}

}  // namespace platform::web
