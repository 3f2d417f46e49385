#include "desktop/GameFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

#include "desktop/DurableFiles.h"

namespace platform::desktop {

namespace {

/// The files that tell a game folder; one is enough, so that a damaged one is played in and told.
constexpr std::array<const char*, 2> kMarks = {"Zarpi1.bmp", "Ultimo.dat"};

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

bool FurnishIn(const QString& folder, const GameFolder::Furnisher& furnish) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder);
    DurableFiles files;
    const bool done = furnish(files);
    QDir::setCurrent(before);
    return done;
}

/// Makes the player's folder out of the shared one. It is put together aside and gets its name when it is complete: a
/// folder of that name is never half furnished, and never furnished again.
void Furnish(const QString& own, const QString& shared, const GameFolder::Furnisher& furnish) {
    if (!QFile::exists(shared + '/' + kMarks[0])) return;
    const QDir parent = QFileInfo(own).dir();
    parent.mkpath(".");
    QTemporaryDir aside(own + ".XXXXXX");
    if (!aside.isValid() || !Copy(shared, aside.path()) || !FurnishIn(aside.path(), furnish)) return;
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

bool GameFolder::Enter(const Places& places, const Furnisher& furnish) {
    if (HoldsTheGame(QDir::currentPath())) return Lock();
    if (HoldsTheGame(places.Program)) {
        QDir::setCurrent(places.Program);
        return Lock();
    }
    const bool furnished = QFile::exists(places.Own + '/' + kMarks[0]);
    if (!furnished) Furnish(places.Own, places.Shared, furnish);
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
