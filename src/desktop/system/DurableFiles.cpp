#include "desktop/system/DurableFiles.h"

#include <QFile>
#include <QSaveFile>
#include <filesystem>

#include "desktop/values/Strings.h"

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace platform::desktop {

namespace {

/// Waits until the disk has what was written.
bool Sync(int handle) {
#if defined(Q_OS_WIN)
    return _commit(handle) == 0;
#elif defined(F_FULLFSYNC)
    return fcntl(handle, F_FULLFSYNC) != -1 || fsync(handle) == 0;
#else
    return fsync(handle) == 0;
#endif
}

/// Waits until the disk knows the name of a file that is new in the current folder. Some systems have no way to.
void SyncFolder() {
#ifndef Q_OS_WIN
    const int folder = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    Sync(folder);
    close(folder);
#endif
}

std::string ToBytes(const QByteArray& bytes) {
    return bytes.toStdString();
}

}  // namespace

bool DurableFiles::Exists(std::string_view name) {
    std::error_code error;
    const auto type = std::filesystem::status(QFile(ToQt(name)).filesystemFileName(), error).type();
    return type != std::filesystem::file_type::not_found && type != std::filesystem::file_type::directory;
}

std::optional<std::string> DurableFiles::Read(std::string_view name) {
    QFile file(ToQt(name));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return ToBytes(content);
}

std::optional<std::string> DurableFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    QFile file(ToQt(name));
    const QIODevice::OpenMode mode = Exists(name) ? QIODevice::ReadOnly : QIODevice::ReadWrite;
    if (!file.open(mode)) return std::nullopt;
    if (offset >= file.size()) return std::string();
    if (!file.seek(offset)) return std::nullopt;
    const QByteArray bytes = file.read(static_cast<qint64>(length));
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return ToBytes(bytes);
}

bool DurableFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    QFile file(ToQt(name));
    const bool isNew = !Exists(name);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !file.seek(offset)) return false;
    const auto length = static_cast<qint64>(bytes.size());
    if (file.write(bytes.data(), length) != length || !Sync(file.handle())) return false;
    if (isNew) SyncFolder();
    return true;
}

bool DurableFiles::Replace(std::string_view name, std::string_view content) {
    // Written beside, brought to the disk, and renamed over the old content.
    QSaveFile file(ToQt(name));
    const auto length = static_cast<qint64>(content.size());
    // Unbuffered: an error that only the last flush meets would go unnoticed, and an empty file take the place of the
    // old.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(content.data(), length) != length ||
        !file.commit())
        return false;
    SyncFolder();
    return true;
}

bool DurableFiles::Remove(std::string_view name) {
    if (!Exists(name)) return true;
    if (!QFile::remove(ToQt(name))) return false;
    SyncFolder();
    return true;
}

}  // namespace platform::desktop
