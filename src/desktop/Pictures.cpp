#include "desktop/Pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmapCache>
#include <algorithm>
#include <array>
#include <vector>

#include "desktop/Companion.h"
#include "desktop/Strings.h"

namespace platform::desktop {

namespace {

constexpr int kLargestKept = 200'000;  // pixels
constexpr std::array<int, 2> kCompanions = {2, 4};

/// One file of a picture and how many times the picture's own size it has.
struct Version {
    QString path;
    int times;
};

/// The files of one picture, the picture itself first; none if there is no such picture.
struct Source {
    std::vector<Version> versions;
    bool isLoaded;  ///< by name from a folder, where each file may have been exchanged alone
};

/// Reads by the format that the name tells: a search among all formats would load every one of them.
class Reader : public QImageReader {
public:
    explicit Reader(const QString& path) : QImageReader(path, QFileInfo(path).suffix().toLatin1()) {
        setAutoDetectImageFormat(false);
    }
};

/// With 32 bits a pixel: a picture with a palette cannot be scaled.
QImage Decode(const QString& path) {
    const QImage image = Reader(path).read();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

Source SourceOf(const PictureLook& look) {
    Source source{.versions = {}, .isLoaded = !look.Picture.empty()};
    const auto add = [&source](const QString& path, int times) {
        if (QFile::exists(path)) source.versions.push_back({path, times});
    };
    const QString file = source.isLoaded ? ToQt(look.Picture) : ":/forms/" + ToQt(std::string_view(look.Stored));
    const QString name = source.isLoaded ? file.left(file.lastIndexOf('.')) : file;
    if (source.isLoaded) {
        add(file, 1);
    } else {
        add(name + ".png", 1);
        if (source.versions.empty()) add(name + ".jpg", 1);
    }
    if (source.versions.empty()) return source;
    const QString ending = source.isLoaded ? QString(".png") : "." + QFileInfo(source.versions.front().path).suffix();
    for (const int times : kCompanions) add(name + QStringLiteral("@%1x").arg(times) + ending, times);
    return source;
}

QSize SizeOf(const Source& source) {
    return source.versions.empty() ? QSize() : Reader(source.versions.front().path).size();
}

/// The picture from the smallest of its files that is at least as wide as asked for, else from the next smaller one.
QImage Choose(const Source& source, QSize own, int width) {
    const auto& versions = source.versions;
    const auto enough = [own, width](const Version& version) { return own.width() * version.times >= width; };
    std::vector<Version> order(std::ranges::find_if(versions, enough), versions.end());
    std::ranges::copy_if(versions.rbegin(), versions.rend(), std::back_inserter(order),
                         [&enough](const Version& version) { return !enough(version); });
    for (const Version& version : order) {
        QImage image = Decode(version.path);
        const bool isCompanion = source.isLoaded && version.times > 1;
        if (!image.isNull() && (!isCompanion || BelongTogether(Decode(versions.front().path), image))) return image;
    }
    return {};
}

/// A picture in `size` logical pixels.
QPixmap Read(const Source& source, QSize size) {
    const QSize own = SizeOf(source);
    if (!own.isValid() || size.isEmpty()) return {};
    const double ratio = qGuiApp->devicePixelRatio();
    const QSize target = (QSizeF(size) * ratio).toSize();
    const QString path = source.versions.front().path;
    const QString key = QStringLiteral("%1 %2 %3").arg(path).arg(target.width()).arg(target.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;

    QImage image = Choose(source, own, target.width());
    if (image.isNull()) return {};
    if (image.size() != target) image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(ratio);
    if (target.width() * target.height() <= kLargestKept) QPixmapCache::insert(key, pixmap);
    return pixmap;
}

PictureLook StoredLook(const std::string& name) {
    return {.Stored = name, .Picture = {}, .ToolTipText = {}};
}

}  // namespace

QSize Pictures::SizeOf(TextView file) const {
    return desktop::SizeOf(SourceOf({.Stored = {}, .Picture = Text(file), .ToolTipText = {}}));
}

QPixmap Pictures::OwnSize(const PictureLook& look) const {
    const Source source = SourceOf(look);
    return Read(source, (QSizeF(desktop::SizeOf(source)) * scale_.Factor()).toSize());
}

QPixmap Pictures::Fitted(const PictureLook& look, QSize size) const {
    return Read(SourceOf(look), size);
}

QPixmap Pictures::Stored(const std::string& name, QSize size) const {
    return Fitted(StoredLook(name), size);
}

QPixmap Pictures::Covering(const std::string& name, QSize area) const {
    const Source source = SourceOf(StoredLook(name));
    return Read(source, (QSizeF(desktop::SizeOf(source)) * scale_.Factor()).toSize().expandedTo(area));
}

}  // namespace platform::desktop
