#include "web/States.h"

#include <array>

#include "platform/Contrast.h"
#include "web/Json.h"

namespace platform::web {

namespace {

constexpr std::array<std::string_view, 10> kKinds = {"Label",         "PictureBox", "Image",   "Shape", "Line",
                                                     "CommandButton", "TextBox",    "ListBox", "Menu",  "Timer"};
constexpr std::array<std::string_view, 4> kFonts = {"sans", "arial", "mono", "serif"};
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

void PutLook(Json& json, const Control& control, bool highContrast) {
    switch (control.kind) {
        case Kind::Label: {
            const auto& label = static_cast<const Label&>(control);
            return Put(json, highContrast ? ReadableLook(label) : LabelLook(label));
        }
        case Kind::PictureBox: return Put(json, static_cast<const PictureBox&>(control));
        case Kind::Image: return Put(json, static_cast<const Image&>(control));
        case Kind::Shape: return Put(json, static_cast<const Shape&>(control));
        case Kind::Line: return Put(json, static_cast<const Line&>(control));
        case Kind::CommandButton: return Put(json, static_cast<const CommandButton&>(control));
        case Kind::TextBox: return Put(json, static_cast<const TextBox&>(control));
        case Kind::ListBox: return Put(json, static_cast<const ListBox&>(control));
        case Kind::Menu:
        case Kind::Timer: break;
    }
}

/// The shortcut as a menu shows it: "Ctrl+N", "F5".
std::string ShortcutOf(const Key& key) {
    if (key.Code == KeyNone) return {};
    const std::string name =
        key.Code >= KeyF1 ? "F" + std::to_string(key.Code - KeyF1 + 1) : std::string(1, static_cast<char>(key.Code));
    return key.Control ? "Ctrl+" + name : name;
}

}  // namespace

std::string StateOf(const Form& form) {
    return Json("form")
        .Text("form", form.Name)
        .Text("caption", form.Caption)
        .Number("width", form.Width)
        .Number("height", form.Height)
        .Colour("back", form.BackColor)
        .Text("background", form.Background)
        .Done();
}

std::string StateOf(const Control& control, const Wishes& wishes, bool isMarked) {
    Json json("element");
    json.Text("form", control.Owner.Name)
        .Text("name", control.FullName())
        .Text("kind", kKinds.at(static_cast<std::size_t>(control.kind)))
        .Flag("visible", control.Visible);
    if (!control.Visible) return json.Done();
    json.Number("left", control.Left)
        .Number("top", control.Top)
        .Number("width", control.Width)
        .Number("height", control.Height)
        .Flag("clicks", control.Click != nullptr)
        .Number("tab", TabIndexOf(control))
        .Text("spoken", SpokenNameOf(control));
    if (isMarked) json.Flag("marked", true);
    PutLook(json, control, wishes.HighContrast);
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
        .Done();
}

bool IsSeen(const Control& control) {
    return control.kind != Kind::CommandButton || !static_cast<const CommandButton&>(control).Covered;
}

}  // namespace platform::web
