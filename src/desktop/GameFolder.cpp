#include "desktop/GameFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

namespace platform::desktop {

namespace {

/// The files that tell a game folder; one is enough, so that a damaged one is played in and told.
constexpr std::array<const char*, 2> kMarks = {"Zarpi1.bmp", "Ultimo.dat"};

/// The counters of stored games and lists; the game reads them and never makes them itself.
constexpr std::array<const char*, 7> kCounters = {"Ultimo.dat", "UltPart.dat", "UltCeI.dat", "UltIyC.dat",
                                                  "UltCas.dat", "UltIng.dat",  "UltCoI.dat"};
constexpr const char* kZero = " 0 \r\n";

bool HoldsTheGame(const QString& folder) {
    return std::ranges::any_of(kMarks, [&folder](const char* mark) { return QFile::exists(folder + '/' + mark); });
}

bool Copy(const QString& from, const QString& into) {
    const auto files = QDir(from).entryInfoList(QDir::Files);
    return std::ranges::all_of(files, [&into](const QFileInfo& file) {
        const QString copy = into + '/' + file.fileName();
        return QFile::copy(file.filePath(), copy) &&
               QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    });
}

bool WriteCounters(const QString& folder) {
    return std::ranges::all_of(kCounters, [&folder](const char* counter) {
        QFile file(folder + '/' + counter);
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(kZero) > 0;
    });
}

/// Makes the player's folder out of the shared one. It is put together aside and gets its name when it is complete: a
/// folder of that name is never half furnished, and never furnished again.
void Furnish(const QString& own, const QString& shared) {
    if (!QFile::exists(shared + '/' + kMarks[0])) return;
    const QDir parent = QFileInfo(own).dir();
    parent.mkpath(".");
    QTemporaryDir aside(own + ".XXXXXX");
    if (!aside.isValid() || !Copy(shared, aside.path()) || !WriteCounters(aside.path())) return;
    QFile::setPermissions(aside.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QDir().rmdir(own);  // an empty one would be in the way
    if (QDir().rename(aside.path(), own)) aside.setAutoRemove(false);
}

}  // namespace

GameFolder::Places GameFolder::SystemPlaces() {
    const QString program = QCoreApplication::applicationDirPath();
    QString shared = program + "/../share/zarpi";
#ifdef Q_OS_MACOS
    shared = program + "/../Resources";
#endif
    return {program, shared, QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)};
}

bool GameFolder::Enter(const Places& places) {
    if (HoldsTheGame(QDir::currentPath())) return Lock();
    if (HoldsTheGame(places.Program)) {
        QDir::setCurrent(places.Program);
        return Lock();
    }
    const bool furnished = QFile::exists(places.Own + '/' + kMarks[0]);
    if (!furnished) Furnish(places.Own, places.Shared);
    if (QFile::exists(places.Own + '/' + kMarks[0])) QDir::setCurrent(places.Own);
    return Lock();
}

bool GameFolder::Lock() {
    lock_ = std::make_unique<QLockFile>(QDir::current().absoluteFilePath(".zarpi.lock"));
    lock_->setStaleLockTime(0);  // only a program that is gone gives it up
    // A folder that cannot be written to is played in all the same.
    return lock_->tryLock() || lock_->error() != QLockFile::LockFailedError;
}

void GameFolder::Leave() {
    lock_.reset();
}

}  // namespace platform::desktop
