#include "desktop/windows/Look.h"

#include <QApplication>
#include <QPalette>
#include <QPixmapCache>

namespace platform::desktop {

void SetLook(const Scale& scale) {
    constexpr int kCacheLimit = 4096;  // kilobytes
    SetColors(false);
    SetLetters(scale);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmapCache::setCacheLimit(kCacheLimit);
}

void SetColors(bool highContrast) {
    constexpr QRgb kGround = 0xEFEFEF;
    QPalette palette{QColor(kGround)};
    if (highContrast) {
        palette.setColor(QPalette::Highlight, Qt::black);
        palette.setColor(QPalette::HighlightedText, Qt::white);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::darkGray);
    }
    QApplication::setPalette(palette);
}

void SetLetters(const Scale& scale) {
    constexpr double kTextSize = 9;  // points
    QApplication::setFont(scale.Font(FontName::MSSansSerif, kTextSize, false));
}

}  // namespace platform::desktop
