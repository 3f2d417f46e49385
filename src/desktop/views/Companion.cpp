#include "desktop/views/Companion.h"

#include <QCryptographicHash>
#include <QFile>
#include <QImageReader>

namespace platform::desktop {

bool BelongTogether(const QString& picture, QSize own, const QString& large, int times) {
    const QImageReader reader(large, "png");
    if (reader.size() != own * times) return false;
    const QString source = reader.text("source");
    QFile file(picture);
    if (source.isEmpty() || !file.open(QIODevice::ReadOnly)) return source.isEmpty();
    return source == "sha1:" + QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1).toHex();
}

}  // namespace platform::desktop
