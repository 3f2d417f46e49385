#include "desktop/Pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmapCache>

#include "desktop/Strings.h"

namespace platform::desktop {

namespace {

constexpr int kLargestKept = 200'000;  // pixels

/// The two files of one picture; the paths are empty where there is none.
struct Source {
    QString single;
    QString twice;
};

/// Reads by the format that the name tells: a search among all formats would load every one of them.
class Reader : public QImageReader {
public:
    explicit Reader(const QString& path) : QImageReader(path, QFileInfo(path).suffix().toLatin1()) {
        setAutoDetectImageFormat(false);
    }
};

QString Existing(const QString& path) {
    return QFile::exists(path) ? path : QString();
}

QString FindStored(const QString& name) {
    const QString png = Existing(name + ".png");
    return png.isEmpty() ? Existing(name + ".jpg") : png;
}

Source SourceOf(const PictureLook& look) {
    if (look.Picture.empty()) {
        const QString name = ":/forms/" + ToQt(std::string_view(look.Stored));
        return {FindStored(name), FindStored(name + "@2x")};
    }
    const QString file = ToQt(look.Picture);
    return {Existing(file), Existing(file.left(file.lastIndexOf('.')) + "@2x.png")};
}

/// Decodes a picture. A palette does not outlive this: scaling one smoothly is more than the toolkit can do.
QImage Decode(const QString& path) {
    QImage image = Reader(path).read();
    if (!image.isNull()) {
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    }
    return image;
}

/// Reads a picture into `size` logical pixels, or into its own size at `factor` if `size` is not valid.
QPixmap Read(const Source& source, QSize size, double factor) {
    const QSize own = source.single.isEmpty() ? QSize() : Reader(source.single).size();
    if (!own.isValid()) return {};
    if (!size.isValid()) size = (QSizeF(own) * factor).toSize();
    const double ratio = qGuiApp->devicePixelRatio();
    const QSize target = (QSizeF(size) * ratio).toSize();
    const QString key = QStringLiteral("%1 %2 %3").arg(source.single).arg(target.width()).arg(target.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;

    const bool wantsTwice = target.width() > own.width() && !source.twice.isEmpty();
    QImage image = Decode(wantsTwice ? source.twice : source.single);
    if (image.isNull()) image = Decode(source.single);
    if (image.isNull()) return {};
    if (image.size() != target) image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(ratio);
    if (target.width() * target.height() <= kLargestKept) QPixmapCache::insert(key, pixmap);
    return pixmap;
}

}  // namespace

QPixmap Pictures::OwnSize(const PictureLook& look) const {
    return Read(SourceOf(look), {}, scale_.Factor());
}

QPixmap Pictures::Fitted(const PictureLook& look, QSize size) const {
    return size.isEmpty() ? QPixmap() : Read(SourceOf(look), size, scale_.Factor());
}

QPixmap Pictures::Stored(const std::string& name, QSize size) const {
    return Fitted(PictureLook{.Stored = name, .Picture = {}, .ToolTipText = {}}, size);
}

}  // namespace platform::desktop
