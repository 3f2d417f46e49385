#include "desktop/Companion.h"

#include <algorithm>
#include <cstdlib>

namespace platform::desktop {

namespace {

constexpr int kBlock = 8;  ///< pixels
/// Of a colour in the mean of a block, of 255. Renderings of one drawing reach 5, another pose 170, a shade of its
/// colours 18.
constexpr int kTolerance = 8;

/// The sum of the differences of red, green and blue in a block of two pictures of one size.
int Difference(const QImage& one, const QImage& other, const QRect& block) {
    int sum = 0;
    for (int y = block.top(); y <= block.bottom(); ++y) {
        const auto* const a = reinterpret_cast<const QRgb*>(one.constScanLine(y));
        const auto* const b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
        for (int x = block.left(); x <= block.right(); ++x) {
            sum += std::abs(qRed(a[x]) - qRed(b[x])) + std::abs(qGreen(a[x]) - qGreen(b[x])) +
                   std::abs(qBlue(a[x]) - qBlue(b[x]));
        }
    }
    return sum;
}

}  // namespace

bool BelongTogether(const QImage& picture, const QImage& large) {
    const QSize size = picture.size();
    if (size.isEmpty()) return false;
    const int times = large.width() / size.width();
    if (large.size() != size * times) return false;
    constexpr auto kFormat = QImage::Format_RGB32;
    const QImage one = picture.convertToFormat(kFormat);
    const QImage other = large.convertToFormat(kFormat).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int y = 0; y < size.height(); y += kBlock) {
        for (int x = 0; x < size.width(); x += kBlock) {
            const QRect block = QRect(x, y, kBlock, kBlock).intersected(one.rect());
            if (Difference(one, other, block) > kTolerance * 3 * block.width() * block.height()) return false;
        }
    }
    return true;
}

}  // namespace platform::desktop
