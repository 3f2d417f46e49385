#include "desktop/Look.h"

#include <QApplication>
#include <QPalette>
#include <QPixmapCache>

namespace platform::desktop {

void SetLook(const Scale& scale) {
    constexpr QRgb kGround = 0xEFEFEF;
    constexpr double kTextSize = 9;    // points, of menus and messages
    constexpr int kCacheLimit = 4096;  // kilobytes
    QApplication::setPalette(QPalette(QColor(kGround)));
    QApplication::setFont(scale.Font(FontName::MSSansSerif, kTextSize, false));
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmapCache::setCacheLimit(kCacheLimit);
}

}  // namespace platform::desktop
