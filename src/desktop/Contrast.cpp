#include "desktop/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "desktop/Colors.h"

namespace platform::desktop {

namespace {

constexpr double kEnough = 7;

/// From 0, black, to 1, white.
double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor Towards(const QColor& color, const QColor& end, double part) {
    const auto mix = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
    return {mix(color.red(), end.red()), mix(color.green(), end.green()), mix(color.blue(), end.blue())};
}

bool Covers(const Place& place, int x, int y) {
    return place.Visible && x >= place.Left && x < place.Left + place.Width && y >= place.Top &&
           y < place.Top + place.Height;
}

/// The colour that an element fills its place with: none for a figure without a filling, an invalid one for a picture.
std::optional<QColor> FillingOf(const Control& control) {
    Color color = NoColor;
    switch (control.kind) {
        case Kind::Label: color = static_cast<const Label&>(control).BackColor; break;
        case Kind::Shape: color = static_cast<const Shape&>(control).FillColor; break;
        case Kind::PictureBox:
        case Kind::Image: return QColor();
        default: break;
    }
    return color.IsNone() ? std::nullopt : std::optional(ToQt(color));
}

}  // namespace

double ContrastOf(const QColor& a, const QColor& b) {
    constexpr double kGlare = 0.05;
    const auto [dark, bright] = std::minmax({Luminance(a), Luminance(b)});
    return (bright + kGlare) / (dark + kGlare);
}

Ink Readable(Ink ink) {
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const auto isNearWhite = [&](const QColor& color) { return ContrastOf(color, black) > ContrastOf(color, white); };
    if (!ink.Ground.isValid()) ink.Ground = isNearWhite(ink.Letters) ? black : white;
    if (ContrastOf(ink.Ground, ink.Letters) >= kEnough) return ink;
    const bool isBright = isNearWhite(ink.Ground);
    ink.Letters = isBright ? black : white;
    const QColor ground = ink.Ground;
    constexpr double kStep = 0.05;
    for (double part = kStep; ContrastOf(ink.Ground, ink.Letters) < kEnough; part += kStep) {
        ink.Ground = Towards(ground, isBright ? white : black, part);
    }
    return ink;
}

QColor GroundBehind(const Label& label) {
    const Form& form = label.Owner;
    const int x = label.Left + label.Width / 2;
    const int y = label.Top + label.Height / 2;
    const auto controls = form.Controls();
    for (auto behind = std::ranges::find(controls, &label) + 1; behind != controls.end(); ++behind) {
        if (!Covers(**behind, x, y)) continue;
        if (const std::optional<QColor> filling = FillingOf(**behind)) return *filling;
    }
    return form.Background.empty() ? ToQt(form.BackColor) : QColor();
}

}  // namespace platform::desktop
