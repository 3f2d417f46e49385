#include "headless/Properties.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <span>

namespace platform::headless {

namespace {

/// A member of an element that can be read under its own name.
template <class Look>
struct Property {
    std::string_view name;
    std::variant<bool Look::*, int Look::*, double Look::*, Text Look::*, Color Look::*, FontName Look::*> member;
};

constexpr std::array<Property<LabelLook>, 8> kLabel = {{{"Caption", &LabelLook::Caption},
                                                        {"BackColor", &LabelLook::BackColor},
                                                        {"ForeColor", &LabelLook::ForeColor},
                                                        {"FontName", &LabelLook::Font},
                                                        {"FontSize", &LabelLook::FontSize},
                                                        {"FontBold", &LabelLook::FontBold},
                                                        {"BorderStyle", &LabelLook::BorderStyle},
                                                        {"ToolTipText", &LabelLook::ToolTipText}}};
constexpr std::array<Property<PictureLook>, 2> kPicture = {
    {{"Picture", &PictureLook::Picture}, {"ToolTipText", &PictureLook::ToolTipText}}};
constexpr std::array<Property<ShapeLook>, 3> kShape = {{{"FillColor", &ShapeLook::FillColor},
                                                        {"BorderColor", &ShapeLook::BorderColor},
                                                        {"BorderWidth", &ShapeLook::BorderWidth}}};
constexpr std::array<Property<LineLook>, 2> kLine = {
    {{"BorderColor", &LineLook::BorderColor}, {"BorderWidth", &LineLook::BorderWidth}}};
constexpr std::array<Property<ButtonLook>, 8> kButton = {{{"Caption", &ButtonLook::Caption},
                                                          {"BackColor", &ButtonLook::BackColor},
                                                          {"FontName", &ButtonLook::Font},
                                                          {"FontSize", &ButtonLook::FontSize},
                                                          {"FontBold", &ButtonLook::FontBold},
                                                          {"Enabled", &ButtonLook::Enabled},
                                                          {"Default", &ButtonLook::Default},
                                                          {"Cancel", &ButtonLook::Cancel}}};
constexpr std::array<Property<TextBoxLook>, 9> kTextBox = {{{"Text", &TextBoxLook::Text},
                                                            {"MaxLength", &TextBoxLook::MaxLength},
                                                            {"Locked", &TextBoxLook::Locked},
                                                            {"Enabled", &TextBoxLook::Enabled},
                                                            {"BackColor", &TextBoxLook::BackColor},
                                                            {"ForeColor", &TextBoxLook::ForeColor},
                                                            {"FontName", &TextBoxLook::Font},
                                                            {"FontSize", &TextBoxLook::FontSize},
                                                            {"FontBold", &TextBoxLook::FontBold}}};
constexpr std::array<Property<ListBoxLook>, 2> kListBox = {
    {{"ListIndex", &ListBoxLook::ListIndex}, {"Enabled", &ListBoxLook::Enabled}}};
constexpr std::array<Property<MenuLook>, 3> kMenu = {
    {{"Caption", &MenuLook::Caption}, {"Checked", &MenuLook::Checked}, {"Enabled", &MenuLook::Enabled}}};
constexpr std::array<Property<Place>, 5> kPlace = {{{"Left", &Place::Left},
                                                    {"Top", &Place::Top},
                                                    {"Width", &Place::Width},
                                                    {"Height", &Place::Height},
                                                    {"Visible", &Place::Visible}}};
constexpr std::array<Property<FormLook>, 7> kForm = {{{"Caption", &FormLook::Caption},
                                                      {"Width", &FormLook::Width},
                                                      {"Height", &FormLook::Height},
                                                      {"Left", &FormLook::Left},
                                                      {"Top", &FormLook::Top},
                                                      {"BackColor", &FormLook::BackColor},
                                                      {"KeyPreview", &FormLook::KeyPreview}}};

template <class T>
Value ToValue(const T& member) {
    return member;
}
Value ToValue(const Color& color) {
    std::array<char, 16> hex{};
    if (color.IsNone()) return Text();
    std::snprintf(hex.data(), hex.size(), "#%06X", static_cast<unsigned>(color.Rgb));
    return FromUtf8(hex.data());
}
Value ToValue(FontName font) {
    static constexpr std::array<TextView, 4> kNames = {u"MS Sans Serif", u"Arial", u"Courier New", u"Times New Roman"};
    return Text(kNames.at(static_cast<std::size_t>(font)));
}

template <class Look, std::size_t N>
std::optional<Value> Read(const Look& look, const std::array<Property<Look>, N>& properties, std::string_view name) {
    for (const Property<Look>& property : properties) {
        if (property.name != name) continue;
        return std::visit([&look](auto member) { return ToValue(look.*member); }, property.member);
    }
    return std::nullopt;
}

std::optional<Value> ReadList(const ListBox& list, std::string_view name) {
    constexpr std::string_view kLine = "List(";
    if (name == "ListCount") return static_cast<int>(list.List.size());
    if (!name.starts_with(kLine)) return std::nullopt;
    std::size_t line = list.List.size();
    std::from_chars(name.data() + kLine.size(), name.data() + name.size(), line);
    return line < list.List.size() ? list.List[line] : Text();
}

std::optional<Value> ReadTimer(const Timer& timer, std::string_view name) {
    if (name == "Enabled") return timer.IsEnabled();
    if (name == "Interval") return timer.Interval;
    return std::nullopt;
}

std::optional<Value> ReadLook(const Control& control, std::string_view name) {
    switch (control.kind) {
        case Kind::Label: return Read<LabelLook>(static_cast<const Label&>(control), kLabel, name);
        case Kind::PictureBox: return Read<PictureLook>(static_cast<const PictureBox&>(control), kPicture, name);
        case Kind::Image: return Read<PictureLook>(static_cast<const Image&>(control), kPicture, name);
        case Kind::Shape: return Read<ShapeLook>(static_cast<const Shape&>(control), kShape, name);
        case Kind::Line: return Read<LineLook>(static_cast<const Line&>(control), kLine, name);
        case Kind::CommandButton: return Read<ButtonLook>(static_cast<const CommandButton&>(control), kButton, name);
        case Kind::TextBox: return Read<TextBoxLook>(static_cast<const TextBox&>(control), kTextBox, name);
        case Kind::Menu: return Read<MenuLook>(static_cast<const Menu&>(control), kMenu, name);
        case Kind::Timer: return ReadTimer(static_cast<const Timer&>(control), name);
        case Kind::ListBox: {
            const auto& list = static_cast<const ListBox&>(control);
            const auto value = Read<ListBoxLook>(list, kListBox, name);
            return value ? value : ReadList(list, name);
        }
    }
    return std::nullopt;
}

}  // namespace

std::string Format(const Value& value) {
    if (const bool* truth = std::get_if<bool>(&value)) return *truth ? "True" : "False";
    if (const int* number = std::get_if<int>(&value)) return std::to_string(*number);
    if (const Text* text = std::get_if<Text>(&value)) return ToUtf8(u'"' + *text + u'"');
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), std::get<double>(value)).ptr;
    return {digits.data(), end};
}

std::optional<Value> PropertyOf(const Control& control, std::string_view name) {
    auto value = ReadLook(control, name);
    if (value || control.kind == Kind::Timer || control.kind == Kind::Menu) return value;
    return Read<Place>(control, kPlace, name);
}

std::optional<Value> PropertyOf(const Form& form, bool shown, std::string_view name) {
    if (name == "Visible") return shown;
    return Read<FormLook>(form, kForm, name);
}

}  // namespace platform::headless
