#include "desktop/Scale.h"

#include <QStringList>
#include <array>
#include <cmath>

namespace platform::desktop {

namespace {

/// What the largest window needs at factor 1: 11,910 by 8,520 twips and a menu bar.
constexpr double kLargestWidth = 794;
constexpr double kLargestHeight = 568 + 23;
/// Title bar and borders belong to the desktop and do not scale with the game.
constexpr int kFrameWidth = 4;
constexpr int kFrameHeight = 40;
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
    constexpr double kHundred = 100;
    const double fits = std::min((available.width() - kFrameWidth) / kLargestWidth,
                                 (available.height() - kFrameHeight) / kLargestHeight);
    return Scale(std::max(std::floor(fits * kHundred) / kHundred, kSmallest));
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
