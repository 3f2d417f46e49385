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
using Source = std::vector<Version>;

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

/// Larger copies are taken from the folder that holds the picture: a picture of the player's own has only copies of
/// his.
Source SourceOf(const PictureLook& look) {
    const auto found = [](const QString& name) { return QFileInfo(name).absoluteFilePath(); };
    const bool isLoaded = !look.Picture.empty();
    const QString name = AssetPath(isLoaded ? look.Picture : Text(u"forms/").append(FromUtf8(look.Stored)));
    QString file = found(isLoaded ? name : name + ".png");
    if (!isLoaded && !QFile::exists(file)) file = found(name + ".jpg");
    if (!QFile::exists(file)) return {};

    Source source = {{file, 1}};
    const QString stem = file.left(file.lastIndexOf('.'));
    const QString ending = isLoaded ? QString(".png") : "." + QFileInfo(file).suffix();
    for (const int times : kCompanions) {
        const QString larger = stem + QStringLiteral("@%1x").arg(times) + ending;
        if (QFile::exists(larger)) source.push_back({larger, times});
    }
    return source;
}

QSize SizeOf(const Source& source) {
    return source.empty() ? QSize() : Reader(source.front().path).size();
}

/// The picture from the smallest of its files that is at least as wide as asked for, else from the next smaller one.
QImage Choose(const Source& source, QSize own, int width) {
    const auto enough = [own, width](const Version& version) { return own.width() * version.times >= width; };
    std::vector<Version> order(std::ranges::find_if(source, enough), source.end());
    std::ranges::copy_if(source.rbegin(), source.rend(), std::back_inserter(order),
                         [&enough](const Version& version) { return !enough(version); });
    for (const Version& version : order) {
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
    if (source.empty()) return {};
    const double ratio = qGuiApp->devicePixelRatio();
    const QString key =
        QStringLiteral("%1 %2 %3 %4").arg(source.front().path).arg(size.width()).arg(size.height()).arg(ratio);
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
