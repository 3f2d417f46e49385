#include "desktop/system/GameFolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QSysInfo>
#include <chrono>

#include "desktop/system/Assets.h"
#include "desktop/system/DurableFiles.h"

namespace platform::desktop {

namespace {

/// Touched this often, a lock is alive; a lock of another machine's that was left alone for so much longer is not.
constexpr auto kSignOfLife = std::chrono::minutes(1);
constexpr auto kGone = 5 * kSignOfLife;

bool InFolder(const QString& folder, const std::function<bool(Files&)>& question) {
    const QString before = QDir::currentPath();
    if (folder.isEmpty() || !QDir::setCurrent(folder)) return false;
    DurableFiles files;
    const bool answer = question(files);
    QDir::setCurrent(before);
    return answer;
}

/// A folder for its owner's eyes only.
void Make(const QString& folder) {
    if (QFile::exists(folder) || !QDir().mkpath(folder)) return;
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// Whether the lock is that of a program on this machine, of which the lock itself knows whether it runs.
bool IsOfThisMachine(const QLockFile& lock) {
    qint64 process = 0;
    QString machine;
    QString program;
    return !lock.getLockInfo(&process, &machine, &program) || machine == QSysInfo::machineHostName();
}

void Touch(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::ReadWrite)) file.setFileTime(QDateTime::currentDateTime(), QFile::FileModificationTime);
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

bool GameFolder::Enter(const Places& places, const Keeper& keeper) {
    if (!InFolder(QDir::currentPath(), keeper.Holds)) {
        const bool isPortable = InFolder(places.Program, keeper.Holds);
        if (!isPortable) Make(places.Own);
        if (isPortable || InFolder(places.Own, keeper.Furnish)) {
            QDir::setCurrent(isPortable ? places.Program : places.Own);
        }
    }
    SetAssetFolders({QDir::currentPath(), places.Program, places.Shared});
    return Lock();
}

bool GameFolder::Lock() {
    const QString path = QDir::current().absoluteFilePath(".zarpi.lock");
    lock_ = std::make_unique<QLockFile>(path);
    const bool isHere = IsOfThisMachine(*lock_);
    lock_->setStaleLockTime(isHere ? std::chrono::milliseconds(0) : kGone);
    if (lock_->tryLock()) {
        QObject::connect(&alive_, &QTimer::timeout, &alive_, [path] { Touch(path); });
        alive_.start(kSignOfLife);
    }
    // A folder that cannot be written to is played in all the same.
    return lock_->isLocked() || lock_->error() != QLockFile::LockFailedError;
}

void GameFolder::Leave() {
    alive_.stop();
    lock_.reset();
}

}  // namespace platform::desktop
