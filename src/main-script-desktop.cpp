// zarpi-script-desktop: plays the game from a text in its real window, by mouse and keyboard; with --reader before all
// other options by what the window offers to screen readers, as far as that goes.

#include <QApplication>
#include <QScreen>

#include "desktop/access/Access.h"
#include "desktop/system/Assets.h"
#include "desktop/windows/Look.h"
#include "hand/ReaderHand.h"
#include "hand/WidgetEye.h"
#include "headless/ScriptFolder.h"
#include "script.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool reads = argc > 1 && std::string_view(argv[1]) == "--reader";
    if (reads) {
        argv[1] = argv[0];
        ++argv;
        --argc;
    }
    int noOptions = 1;
    QApplication::setStyle("fusion");
    const QApplication app(noOptions, argv);
    const platform::desktop::Scale scale =
        platform::desktop::Scale::For(QApplication::primaryScreen()->availableSize());
    platform::desktop::SetLook(scale);
    platform::desktop::SetAssetFolders({".", QCoreApplication::applicationDirPath() + "/" ZARPI_ASSETS});

    platform::headless::ScriptFolder files;
    platform::desktop::WindowDisplay display(scale);
    platform::headless::Headless headless(files, &display);
    display.Attach(headless.screen);
    platform::desktop::InstallAccess();
    platform::hand::WidgetHand mouse(headless.screen, display);
    platform::hand::ReaderHand reader(headless.screen, display);
    platform::headless::Hand& hand = reads ? reader : mouse;
    const platform::hand::WidgetEye eye(headless.screen, display);
    return PlayScript(argc, argv, headless, {.Hand = hand, .Eye = &eye, .Folder = files});
}
