#include "desktop/system/SystemWishes.h"

#include <QGuiApplication>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QMap>
#include <QVariantMap>
#endif

namespace platform::desktop {

void SystemWishes::Watch(std::function<void(const Wishes&)> tell) {
    tell_ = std::move(tell);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) Ask();
    });
    Ask();
}

void SystemWishes::Hear(const Wishes& wishes) {
    if (std::exchange(heard_, wishes) != wishes) tell_(wishes);
}

#ifdef Q_OS_WIN

void SystemWishes::Ask() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
    BOOL moves = TRUE;
    SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &moves, 0);
    Hear({.HighContrast = (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0, .Stillness = moves == FALSE});
}

#else

namespace {

/// The settings of a desktop by the names of their groups.
using Settings = QMap<QString, QVariantMap>;

Wishes WishesOf(const Settings& settings) {
    const QVariantMap looks = settings["org.gnome.desktop.interface"];
    const bool contrast = settings["org.freedesktop.appearance"].value("contrast").toUInt() == 1 ||
                          settings["org.gnome.desktop.a11y.interface"].value("high-contrast").toBool() ||
                          looks.value("gtk-theme").toString().startsWith("HighContrast");
    const QString speed = settings["org.kde.kdeglobals.KDE"].value("AnimationDurationFactor").toString();
    const bool still = !looks.value("enable-animations", true).toBool() || (!speed.isEmpty() && speed.toDouble() == 0);
    return {.HighContrast = contrast, .Stillness = still};
}

}  // namespace

void SystemWishes::Ask() {
    auto question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                                   "org.freedesktop.portal.Settings", "ReadAll");
    question << QStringList{"org.freedesktop.appearance", "org.gnome.desktop.a11y.interface",
                            "org.gnome.desktop.interface", "org.kde.kdeglobals.KDE"};
    auto* const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QList<QVariant> arguments = answer->reply().arguments();
        if (answer->isError() || arguments.isEmpty()) return;
        Settings settings;
        arguments.constFirst().value<QDBusArgument>() >> settings;
        Hear(WishesOf(settings));
    });
}

#endif

}  // namespace platform::desktop
