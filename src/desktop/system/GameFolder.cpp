#include "desktop/system/GameFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "desktop/system/Assets.h"
#include "storage/FolderFiles.h"

namespace platform::desktop {

namespace {

/// Makes a folder the current one.
bool GoTo(const QString& folder) {
    return !folder.isEmpty() && QDir::setCurrent(folder);
}

/// A folder for its owner's eyes only.
void Make(const QString& folder) {
    if (folder.isEmpty() || QFile::exists(folder) || !QDir().mkpath(folder)) return;
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// Goes to the folder that has the records, or else is to have them. False if there is none.
bool GoToRecords(const GameFolder::Places& places, const GameFolder::Keeper& keeper, Files& files) {
    const QString before = QDir::currentPath();
    if (keeper.Holds(files)) return true;
    if (GoTo(places.Program) && keeper.Holds(files)) return true;
    QDir::setCurrent(before);
    Make(places.Own);
    return GoTo(places.Own);
}

}  // namespace

GameFolder::Places GameFolder::SystemPlaces() {
    const QString program = QCoreApplication::applicationDirPath();
    QString shared = program + "/../share/zarpi";
#ifdef Q_OS_MACOS
    shared = program + "/../Resources";
#endif
    // It would mean another folder at every start; the system's rules have it ignored.
    constexpr const char* kDataHome = "XDG_DATA_HOME";
    if (!QDir::isAbsolutePath(qEnvironmentVariable(kDataHome))) qunsetenv(kDataHome);
    return {program, shared, QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)};
}

GameFolder::Entry GameFolder::Enter(const Places& places, const Keeper& keeper) {
    storage::FolderFiles files;
    Entry entry = Entry::Free;
    const bool found = GoToRecords(places, keeper, files);
    if (found && !lock_.Take()) {
        entry = Entry::Taken;
    } else if (!found || (!keeper.Furnish(files) && !keeper.Holds(files))) {
        lock_.Release();
        temporary_ = std::make_unique<QTemporaryDir>();
        GoTo(temporary_->path());
        keeper.Furnish(files);
        entry = Entry::Temporary;
    } else {
        // A program that was killed while it wrote has left this.
        files.Remove(storage::FolderFiles::kBeside);
    }
    SetAssetFolders({QDir::currentPath(), places.Program, places.Shared});
    return entry;
}

void GameFolder::Leave() {
    lock_.Release();
    if (!temporary_) return;
    QDir::setCurrent(QDir::rootPath());  // some systems do not remove the current folder
    temporary_.reset();
}

}  // namespace platform::desktop
