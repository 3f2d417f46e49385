// zarpi-script-desktop: plays the game from a text in its real window, by mouse and keyboard.

#include <QApplication>
#include <QScreen>

#include "desktop/Assets.h"
#include "desktop/Look.h"
#include "hand/WidgetEye.h"
#include "hand/WidgetHand.h"
#include "headless/FolderFiles.h"
#include "script.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    int noOptions = 1;
    QApplication::setStyle("fusion");
    const QApplication app(noOptions, argv);
    const platform::desktop::Scale scale =
        platform::desktop::Scale::For(QApplication::primaryScreen()->availableSize());
    platform::desktop::SetLook(scale);
    platform::desktop::SetAssetFolders({".", QCoreApplication::applicationDirPath() + "/" ZARPI_ASSETS});

    platform::headless::FolderFiles files;
    platform::desktop::WindowDisplay display(scale);
    platform::headless::Headless headless(files, &display);
    display.Attach(headless.screen);
    platform::hand::WidgetHand hand(headless.screen, display);
    const platform::hand::WidgetEye eye(headless.screen, display);
    return PlayScript(argc, argv, headless, {.Hand = hand, .Eye = &eye, .Folder = files});
}
