#include "platform/Contrast.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace platform {

namespace {

constexpr double kEnough = 7;

struct Channels {
    int Red, Green, Blue;
};

Channels ChannelsOf(Color color) {
    constexpr unsigned kByte = 0xFF;
    const auto rgb = static_cast<unsigned>(color.Rgb);
    return {static_cast<int>(rgb >> 16U & kByte), static_cast<int>(rgb >> 8U & kByte), static_cast<int>(rgb & kByte)};
}

/// From 0, black, to 1, white.
double Luminance(Color color) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const Channels channels = ChannelsOf(color);
    return 0.2126 * linear(channels.Red) + 0.7152 * linear(channels.Green) + 0.0722 * linear(channels.Blue);
}

/// A colour on the way from one to another.
Color Towards(Color from, Color to, double part) {
    const Channels a = ChannelsOf(from);
    const Channels b = ChannelsOf(to);
    const auto mix = [part](int start, int end) { return start + static_cast<int>(std::lround((end - start) * part)); };
    return mix(a.Red, b.Red) << 16 | mix(a.Green, b.Green) << 8 | mix(a.Blue, b.Blue);
}

bool Covers(const Place& place, int x, int y) {
    return place.Visible && x >= place.Left && x < place.Left + place.Width && y >= place.Top &&
           y < place.Top + place.Height;
}

/// What an element fills its place with: a colour, none for a picture, nothing for a figure without a filling.
std::optional<Color> FillingOf(const Control& control) {
    Color color;
    switch (control.kind) {
        case Kind::Label: color = static_cast<const Label&>(control).BackColor; break;
        case Kind::Shape: color = static_cast<const Shape&>(control).FillColor; break;
        case Kind::PictureBox:
        case Kind::Image: return NoColor;
        default: break;
    }
    return color.IsNone() ? std::nullopt : std::optional(color);
}

/// The colour that lies behind the middle of a label without a ground of its own; none where that is a picture.
Color GroundBehind(const Label& label) {
    const Form& form = label.Owner;
    const int x = label.Left + label.Width / 2;
    const int y = label.Top + label.Height / 2;
    const auto controls = form.Controls();
    for (auto behind = std::ranges::find(controls, &label) + 1; behind != controls.end(); ++behind) {
        if (!Covers(**behind, x, y)) continue;
        if (const std::optional<Color> filling = FillingOf(**behind)) return *filling;
    }
    return form.Background.empty() ? form.BackColor : NoColor;
}

}  // namespace

double ContrastOf(Color a, Color b) {
    constexpr double kGlare = 0.05;
    const auto [dark, bright] = std::minmax({Luminance(a), Luminance(b)});
    return (bright + kGlare) / (dark + kGlare);
}

Ink Readable(Ink ink) {
    const auto isNearWhite = [](Color color) { return ContrastOf(color, Black) > ContrastOf(color, White); };
    if (ink.Ground.IsNone()) ink.Ground = isNearWhite(ink.Letters) ? Black : White;
    if (ContrastOf(ink.Ground, ink.Letters) >= kEnough) return ink;
    const bool isBright = isNearWhite(ink.Ground);
    ink.Letters = isBright ? Black : White;
    const Color ground = ink.Ground;
    constexpr double kStep = 0.05;
    for (double part = kStep; ContrastOf(ink.Ground, ink.Letters) < kEnough; part += kStep) {
        ink.Ground = Towards(ground, isBright ? White : Black, part);
    }
    return ink;
}

ReadableLabel Readable(const Label& label) {
    const bool hasGround = !label.BackColor.IsNone();
    const Color behind = hasGround ? label.BackColor : GroundBehind(label);
    Ink ink = Readable({behind, label.ForeColor});
    if (!hasGround && ink.Ground == behind) ink.Ground = NoColor;
    return {ink, label.Snug || !hasGround};
}

}  // namespace platform
