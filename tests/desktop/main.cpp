#include <QApplication>
#include <gtest/gtest.h>

#include "Rig.h"

/// What SDL keeps for itself until the process ends is no leak of the game's.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libSDL2\n";
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZARPI_SCREEN);
    // Sound goes to a file, where there is a folder for it. Set here, before any thread reads the environment.
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", "device/out.raw");
    testing::InitGoogleTest(&argc, argv);
    QApplication::setStyle("fusion");
    const QApplication app(argc, argv);
    platform::desktop::SetAssetFolders({platform::desktop::GameAssets()});
    return RUN_ALL_TESTS();
}
