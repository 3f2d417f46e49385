#include "desktop/values/Scale.h"

#include <QStringList>
#include <array>
#include <cmath>

namespace platform::desktop {

namespace {

/// What the largest window needs, in twips.
constexpr QSize kLargestWindow(11910, 8520 + Scale::kMenuHeight);
/// Title bar and borders belong to the desktop and do not scale with the game.
constexpr QSize kFrame(4, 40);
constexpr double kSmallest = 0.25;
constexpr double kTolerance = 0.001;

/// The families that stand in for the fonts of the design, by FontName: first those of equal widths that the package
/// brings along, then what other systems have.
const QStringList& Families(FontName name) {
    static const QStringList kSans = {"Liberation Sans", "Arial", "Helvetica"};
    static const QStringList kMono = {"Liberation Mono", "Courier New", "Courier"};
    static const QStringList kSerif = {"Liberation Serif", "Times New Roman", "Times"};
    static const std::array<const QStringList*, 4> kFamilies = {&kSans, &kSans, &kMono, &kSerif};
    return *kFamilies.at(static_cast<std::size_t>(name));
}

/// In percent: MS Sans Serif is a trifle narrower than what stands in for it, and texts are laid out to the line.
int StretchOf(FontName name) {
    return name == FontName::MSSansSerif ? 96 : 100;
}

}  // namespace

Scale Scale::For(QSize available) {
    return Filling(available - kFrame, kLargestWindow);
}

Scale Scale::Filling(QSize pixels, QSize design) {
    constexpr double kHundred = 100;
    const double fits = kTwipsPerPixel * std::min(static_cast<double>(pixels.width()) / design.width(),
                                                  static_cast<double>(pixels.height()) / design.height());
    // Sizes are rounded: the next hundredth may just fit.
    const Scale next((std::floor(fits * kHundred) + 1) / kHundred);
    const QSize size = next.Size(design);
    const bool isNext = size.width() <= pixels.width() && size.height() <= pixels.height();
    return Scale(std::clamp(isNext ? next.Factor() : std::floor(fits * kHundred) / kHundred, kSmallest, kLargest));
}

QRect Scale::Rect(const Place& place) const {
    const QPoint corner(Pixels(place.Left), Pixels(place.Top));
    const QPoint end(Pixels(place.Left + place.Width), Pixels(place.Top + place.Height));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

QFont Scale::Font(FontName name, double points, bool bold) const {
    constexpr double kTwipsPerPoint = 20;
    const double exact = points * kTwipsPerPoint / kTwipsPerPixel * factor_;
    const int pixels = qMax(1, static_cast<int>(exact + kTolerance));
    QFont font(Families(name));
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setStretch(qMax(1, static_cast<int>(StretchOf(name) * exact / pixels + kTolerance)));
    // Hinted in height only: crisp, and as wide at every factor and on every machine as the design has it.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

}  // namespace platform::desktop
