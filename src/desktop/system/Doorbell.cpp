#include "desktop/system/Doorbell.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace platform::desktop {

namespace {

constexpr std::string_view kBell = ".zarpi.timbre";

/// Some systems let a program come to the front by a token alone, which the second start was given.
constexpr const char* kToken = "XDG_ACTIVATION_TOKEN";

}  // namespace

void Doorbell::Answer(std::function<void()> come) {
    come_ = std::move(come);
    door_.addPath(QDir::currentPath());
    QObject::connect(&door_, &QFileSystemWatcher::directoryChanged, &door_, [this] { Look(); });
    Look();
}

void Doorbell::Look() {
    const auto token = files_.Read(kBell);
    if (!token || !files_.Remove(kBell)) return;
    if (!token->empty()) qputenv(kToken, QByteArray::fromStdString(*token));
    come_();
}

bool Doorbell::Ring(std::chrono::milliseconds patience) {
    constexpr unsigned long kPause = 20;  // milliseconds
#ifdef Q_OS_WIN
    AllowSetForegroundWindow(ASFW_ANY);
#endif
    storage::FolderFiles files;
    files.Remove(kBell);  // not written through, if it is a link
    if (!files.Replace(kBell, qgetenv(kToken).toStdString())) return false;
    const QDeadlineTimer end(patience);
    while (files.Exists(kBell) && !end.hasExpired()) QThread::msleep(kPause);
    if (!files.Exists(kBell)) return true;
    files.Remove(kBell);
    return false;
}

}  // namespace platform::desktop
