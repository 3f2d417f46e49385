#include "desktop/views/Pictures.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmapCache>
#include <algorithm>
#include <array>
#include <vector>

#include "desktop/system/Assets.h"
#include "desktop/values/Strings.h"
#include "desktop/views/Companion.h"

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
    const QString file = AssetPath(source.isLoaded ? look.Picture : Text(u"forms/").append(FromUtf8(look.Stored)));
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
        const bool isCompanion = source.isLoaded && version.times > 1;
        if (isCompanion && !BelongTogether(versions.front().path, own, version.path, version.times)) continue;
        QImage image = Decode(version.path);
        if (!image.isNull()) return image;
    }
    return {};
}

/// A picture in `size` logical pixels, read and scaled anew.
QImage Read(const Source& source, QSize size, double ratio) {
    const QSize own = SizeOf(source);
    if (!own.isValid() || size.isEmpty()) return {};
    const QSize target = (QSizeF(size) * ratio).toSize();
    QImage image = Choose(source, own, target.width());
    if (image.isNull()) return {};
    if (image.size() != target) image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return image;
}

/// A picture in `size` logical pixels, a small one from the last time.
QPixmap Recall(const Source& source, QSize size) {
    if (source.versions.empty()) return {};
    const double ratio = qGuiApp->devicePixelRatio();
    const QString key =
        QStringLiteral("%1 %2 %3 %4").arg(source.versions.front().path).arg(size.width()).arg(size.height()).arg(ratio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = QPixmap::fromImage(Read(source, size, ratio));
    const QSize pixels = pixmap.size();
    if (!pixmap.isNull() && pixels.width() * pixels.height() <= kLargestKept) QPixmapCache::insert(key, pixmap);
    return pixmap;
}

PictureLook StoredLook(const std::string& name) {
    return {.Stored = name, .Picture = {}, .ToolTipText = {}};
}

}  // namespace

Pictures::Pictures(const Scale& scale) : scale_(scale) {
#ifdef Q_OS_WIN
    // The toolkit looks for its modules by regular expression and keeps something for those in the thread, which MinGW
    // destroys when the thread's memory is gone: no thread that reads a picture and ends may be the first to look.
    QImageReader::supportedImageFormats();
#endif
}

QSize Pictures::SizeOf(TextView file) const {
    return desktop::SizeOf(SourceOf({.Stored = {}, .Picture = Text(file), .ToolTipText = {}}));
}

QPixmap Pictures::OwnSize(const PictureLook& look) const {
    const Source source = SourceOf(look);
    return Recall(source, (QSizeF(desktop::SizeOf(source)) * scale_.Factor()).toSize());
}

QPixmap Pictures::Fitted(const PictureLook& look, QSize size) const {
    return Recall(SourceOf(look), size);
}

QPixmap Pictures::Stored(const std::string& name, QSize size) const {
    return Fitted(StoredLook(name), size);
}

std::future<QImage> Pictures::Covering(const std::string& name, QSize area) const {
    return std::async(std::launch::async, [=, factor = scale_.Factor(), ratio = qGuiApp->devicePixelRatio()] {
        const Source source = SourceOf(StoredLook(name));
        return Read(source, (QSizeF(desktop::SizeOf(source)) * factor).toSize().expandedTo(area), ratio);
    });
}

}  // namespace platform::desktop
