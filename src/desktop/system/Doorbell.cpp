#include "desktop/system/Doorbell.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace platform::desktop {

namespace {

QString Bell() {
    return QDir::current().absoluteFilePath(".zarpi.timbre");
}

/// Some systems let a program come to the front by a token alone, which the second start was given.
constexpr const char* kToken = "XDG_ACTIVATION_TOKEN";

}  // namespace

void Doorbell::Answer(std::function<void()> come) {
    come_ = std::move(come);
    door_.addPath(QDir::currentPath());
    QObject::connect(&door_, &QFileSystemWatcher::directoryChanged, &door_, [this] { Look(); });
}

void Doorbell::Look() const {
    QFile bell(Bell());
    if (!bell.open(QIODevice::ReadOnly)) return;
    const QByteArray token = bell.readAll();
    bell.close();
    if (!bell.remove()) return;
    if (!token.isEmpty()) qputenv(kToken, token);
    come_();
}

bool Doorbell::Ring() {
    constexpr auto kPatience = std::chrono::seconds(1);
    constexpr unsigned long kPause = 20;  // milliseconds
#ifdef Q_OS_WIN
    AllowSetForegroundWindow(ASFW_ANY);
#endif
    // It is there with its token at once.
    QFile bell(Bell() + '~');
    if (!bell.open(QIODevice::WriteOnly)) return false;
    bell.write(qgetenv(kToken));
    bell.close();
    if (!bell.rename(Bell())) return !bell.remove();
    const QDeadlineTimer patience(kPatience);
    while (QFile::exists(Bell()) && !patience.hasExpired()) QThread::msleep(kPause);
    return !QFile::remove(Bell());
}

}  // namespace platform::desktop
