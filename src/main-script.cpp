// zarpi-script: plays the game from a text, on the platform in memory.

#include "headless/ScriptFolder.h"
#include "script.h"

int main(int argc, char** argv) {
    platform::headless::ScriptFolder files;
    platform::headless::Headless headless(files);
    platform::headless::ScreenHand hand(headless.screen);
    return PlayScript(argc, argv, headless, {.Hand = hand, .Eye = nullptr, .Folder = files});
}
