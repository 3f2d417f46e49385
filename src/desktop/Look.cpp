#include "desktop/Look.h"

#include <QApplication>
#include <QPalette>
#include <QPixmapCache>

namespace platform::desktop {

void SetLook(const Scale& scale) {
    constexpr QRgb kGround = 0xEFEFEF;
    constexpr int kCacheLimit = 4096;  // kilobytes
    QApplication::setPalette(QPalette(QColor(kGround)));
    SetLetters(scale);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmapCache::setCacheLimit(kCacheLimit);
}

void SetLetters(const Scale& scale) {
    constexpr double kTextSize = 9;  // points
    QApplication::setFont(scale.Font(FontName::MSSansSerif, kTextSize, false));
}

}  // namespace platform::desktop
