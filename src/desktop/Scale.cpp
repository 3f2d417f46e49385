#include "desktop/Scale.h"

#include <QFontMetrics>
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
constexpr double kStep = 0.25;
/// In percent: MS Sans Serif is a trifle narrower than what stands in for it, and texts are laid out to the line.
constexpr int kSansStretch = 97;

/// The families that stand in for the fonts of the design, by FontName: first those of equal widths that the package
/// brings along, then what other systems have.
const QStringList& Families(FontName name) {
    static const QStringList kSans = {"Liberation Sans", "Arial", "Helvetica"};
    static const QStringList kMono = {"Liberation Mono", "Courier New", "Courier"};
    static const QStringList kSerif = {"Liberation Serif", "Times New Roman", "Times"};
    static const std::array<const QStringList*, 4> kFamilies = {&kSans, &kSans, &kMono, &kSerif};
    return *kFamilies.at(static_cast<std::size_t>(name));
}

}  // namespace

Scale Scale::For(QSize available) {
    const double fits = std::min((available.width() - kFrameWidth) / kLargestWidth,
                                 (available.height() - kFrameHeight) / kLargestHeight);
    return Scale(fits < 1 ? std::max(fits, kStep) : std::floor(fits / kStep) * kStep);
}

QRect Scale::Rect(const Place& place) const {
    const QPoint corner(Pixels(place.Left), Pixels(place.Top));
    const QPoint end(Pixels(place.Left + place.Width), Pixels(place.Top + place.Height));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

QFont Scale::Font(FontName name, double points, bool bold) const {
    constexpr double kTwipsPerPoint = 20;
    constexpr double kTolerance = 0.001;
    QFont font(Families(name));
    font.setPixelSize(qMax(1, static_cast<int>(points * kTwipsPerPoint / kTwipsPerPixel * factor_ + kTolerance)));
    font.setBold(bold);
    if (name == FontName::MSSansSerif) font.setStretch(kSansStretch);
    // Hinted in height only: crisp, and as wide at every factor and on every machine as the design has it.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QFont FittedFont(QFont font, const QString& text, QSize box) {
    if (text.size() < 2) return font;
    const int smallest = font.pixelSize() / 2;
    const auto fits = [&font, &text, &box] {
        const QFontMetrics metrics(font);
        const QSize size = metrics.boundingRect(QRect(QPoint(), box), Qt::TextWordWrap, text).size();
        const bool isLine = size.height() < 2 * metrics.height();
        return size.width() <= box.width() && (isLine || size.height() <= box.height());
    };
    while (font.pixelSize() > smallest && !fits()) font.setPixelSize(font.pixelSize() - 1);
    return font;
}

}  // namespace platform::desktop
